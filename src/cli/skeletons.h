// Skeleton comments on their way into the sources of a project.
#pragma once

#include <string>
#include <vector>

#include "comments/comment_lines.h"
#include "model/wrapper.h"
#include "settings/project_settings.h"

namespace tamrikon {

/// A skeleton and the place where it belongs, in the lines of the snapshot that `source` holds.
struct Skeleton {
  std::string name;  // of the member or module, for people
  ModuleSource* source = nullptr;
  bool isOfModule = false;
  int line = 1;  // where the declaration begins
  CommentLines comment;
};

/// The skeleton of a wrapper. Throws IdeError if the wrapper's declaration can't be found.
Skeleton skeletonOf(const Wrapper& wrapper, std::string name, const ProjectSettings& settings);

/// What to do with a second skeleton at one place, which comes of files that several modules stand
/// over.
enum class Repeats { insert, leaveOut };

/// Inserts all of them into modules of a HostIde: of several at one line, the last comes lowest.
/// Those of modules come last, at the top, with an empty line below if a comment line stood there.
/// The result is those that were inserted, in the order in which they were given.
std::vector<const Skeleton*> insertSkeletons(const std::vector<Skeleton>& skeletons,
                                             Repeats repeats);

}  // namespace tamrikon
