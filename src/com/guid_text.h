// Numbers of classes and interfaces as the registry has them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "com/com.h"

namespace tamrikon {

/// Such as "{00000001-0000-0000-C000-000000000046}".
std::string textOf(const GUID& guid);

/// Nothing if `text` isn't such a text; the case of its letters doesn't matter.
std::optional<GUID> guidOf(std::string_view text);

}  // namespace tamrikon
