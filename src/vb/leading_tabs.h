// Tabs in front of a line, which the IDE doesn't have: it gives and keeps lines with blanks there.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tamrikon {

/// `text` with blanks, up to the next multiple of 4, for each tab among the white space that a line
/// begins with. Nothing if there is no such tab. Lines before `start`, which is where a line
/// begins, stay as they are.
std::optional<std::string> withoutLeadingTabs(std::string_view text, std::size_t start = 0);

}  // namespace tamrikon
