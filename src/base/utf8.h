// UTF-8: the form that every text has inside the program.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tamrikon {

/// The byte order mark that some programs write before a text.
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

/// `bytes` without the mark that they may begin with.
std::string_view withoutUtf8Mark(std::string_view bytes);

/// Whether `bytes` are well-formed UTF-8 as a whole (RFC 3629: no surrogates, no overlong forms).
bool isValidUtf8(std::string_view bytes);

/// Whether no byte of `text` is above 0x7F.
bool isAscii(std::string_view text);

/// The number of code points in `text`.
std::size_t codePointCount(std::string_view text);

/// Reads the code point at `offset` (from 0) and moves `offset` behind it. A byte that begins no
/// well-formed sequence is read alone, as its own value.
char32_t readCodePoint(std::string_view text, std::size_t& offset);

void appendCodePoint(std::string& text, char32_t codePoint);

}  // namespace tamrikon
