// The templates in a folder.
#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace tamrikon {

/// File names, sorted by their names without extension, without regard to case.
std::vector<std::string> templateNames(FileSystem& files, const std::string& folder);

}  // namespace tamrikon
