// Where the pages of a group go if each of its projects has a folder of its own.
#pragma once

#include <string>
#include <vector>

#include "ide/ide.h"

namespace tamrikon {

struct GroupFolders {
  std::string above;  // absolute, for the pages of the group; empty: no project has its own folder
  std::vector<std::string> names;  // of the folders in it, in the order of the projects

  /// The name of a project's folder; empty if there is none.
  std::string of(const VBProjects& projects, const VBProject& project) const;
};

/// Each folder has the name of its project, with a number behind it where a project before it has
/// the same one without regard to case. A project without components, which a group compile passes
/// over, gets none.
GroupFolders foldersBelow(std::string above, const VBProjects& projects);

}  // namespace tamrikon
