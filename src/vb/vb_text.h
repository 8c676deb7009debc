// Searching in the text of Visual Basic source. Positions count from 1, and 0 means "not there".
#pragma once

#include <cstddef>
#include <string_view>

namespace tamrikon {

/// The position of `word` in `text` at or behind `start`, string literals being skipped: a double
/// quote opens one, a doubled quote inside is part of it. A literal without an end reaches to the
/// end of the text. A match that begins with the quote itself counts. 0 if there is none or if
/// `start` is below 1.
std::size_t inStrOutsideQuotes(std::string_view text, std::string_view word, std::size_t start = 1);

/// `text` without the comment that begins at its first apostrophe outside string literals, and
/// without the blanks that stood before it.
std::string_view stripLineComment(std::string_view text);

/// The position of the first blank or tab, or 0.
std::size_t firstWhitespace(std::string_view text);

/// The same, string literals being skipped.
std::size_t firstWhitespaceOutsideStrings(std::string_view text);

/// Whether the line is continued by the next one: its last two characters are " _".
bool isContinued(std::string_view line);

}  // namespace tamrikon
