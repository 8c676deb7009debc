// Where the system wants programs to keep things of a user.
#pragma once

#include <string>

namespace tamrikon {

/// The folder of configuration files, an absolute path without a separator at its end; it may have
/// to be made. Empty for a user without a home.
std::string userConfigFolder();

/// The same for what programs note while they run, such as work that isn't saved.
std::string userStateFolder();

}  // namespace tamrikon
