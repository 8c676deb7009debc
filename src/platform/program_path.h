// Where the running program lies.
#pragma once

#include <string>

namespace tamrikon {

/// The folder of the running program's file, or empty if the system doesn't tell.
std::string programFolder();

}  // namespace tamrikon
