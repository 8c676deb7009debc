// Texts in attribute lines: in quotes, with a doubled quote for a quote and `\r\n` for a line
// break.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tamrikon {

/// The most characters that the IDE reads of a line.
constexpr std::size_t kMaxLineLength = 1023;

/// The text of a value as it stands in the line, line breaks as CR LF; empty if there is no quote.
std::string readAttributeText(std::string_view value);

/// The reverse. CR LF, CR and LF are one line break each.
std::string writtenAttributeText(std::string_view text);

/// The beginning of `text`, up to the end of a word, whose written form has no more than `room`
/// characters, the quotes around it included; all of it if that fits. A word that takes more than
/// half of the room is divided.
std::string_view fittingAttributeText(std::string_view text, std::size_t room);

}  // namespace tamrikon
