// What stands in a folder, told apart and in the order in which people look for names.
#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace tamrikon {

/// The names of the files, or of the folders, in `folder`, links to them among them, sorted without
/// regard to case. None for a folder that can't be read and for an empty path, which names none.
std::vector<std::string> filesIn(FileSystem& files, const std::string& folder);
std::vector<std::string> foldersIn(FileSystem& files, const std::string& folder);

}  // namespace tamrikon
