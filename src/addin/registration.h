// Entering the component into the user's registry: as a class, and as an add-in of the IDE.
#pragma once

#include <string>

#include "platform/registry.h"

namespace tamrikon {

/// The path of the library that this code is in.
std::string componentPath();

/// The path of the library is written anew each time; whether the add-in is loaded on start-up, as
/// it is at first, stays as the user has it.
FileError registerComponent(Registry& registry, const std::string& path);

/// Takes away what registerComponent() has written.
FileError unregisterComponent(Registry& registry);

}  // namespace tamrikon
