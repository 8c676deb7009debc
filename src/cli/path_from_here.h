// Paths as a person in the current folder would write them.
#pragma once

#include <string>

#include "platform/file_system.h"

namespace tamrikon {

/// Relative to the current folder if the file or folder lies below it, otherwise absolute; "." for
/// the current folder.
std::string pathFromHere(FileSystem& files, const std::string& path);

}  // namespace tamrikon
