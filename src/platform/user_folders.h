// Where the system wants programs to keep things of a user.
#pragma once

#include <string>

namespace tamrikon {

/// The folder of configuration files, an absolute path without a separator at its end; it may have
/// to be made. Empty for a user without a home.
std::string userConfigFolder();

}  // namespace tamrikon
