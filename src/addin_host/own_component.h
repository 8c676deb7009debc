// The component that comes with the programs.
#pragma once

#include <optional>
#include <string>

#include "platform/registry.h"

namespace tamrikon {

/// Its path, seen from the running program; a file need not be there.
std::string ownComponent();

/// Lets it register itself if it is there and not registered, or another one, perhaps gone by now,
/// is registered in its place. A line if that fails.
std::optional<std::string> registerOwnComponent(const Registry& registry);

}  // namespace tamrikon
