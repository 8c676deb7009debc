// What differs between two texts, in the unified format that `patch` and `git apply` take.
#pragma once

#include <string>
#include <string_view>

namespace tamrikon {

/// The differences with three lines of context, below a head that names the file; empty if there
/// are none. Lines end in LF: a CR before it belongs to the line, as all bytes do.
std::string unifiedDiff(std::string_view path, std::string_view before, std::string_view after);

}  // namespace tamrikon
