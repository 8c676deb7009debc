// The smallest steps of reading Visual Basic source. Tabs count as blanks here.
#pragma once

#include <cstddef>
#include <string_view>

namespace tamrikon {

inline bool isBlank(char c) {
  return c == ' ' || c == '\t';
}
inline bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
inline bool isAboveAscii(char c) {
  return static_cast<unsigned char>(c) >= 0x80;
}

/// Whether `c` can stand in an identifier; every character above 0x7F can.
inline bool isNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || isDigit(c) || c == '_' ||
         isAboveAscii(c);
}

inline std::string_view skipBlanks(std::string_view text) {
  std::size_t offset = 0;
  while (offset < text.size() && isBlank(text[offset])) ++offset;
  return text.substr(offset);
}

inline std::string_view trimBlanks(std::string_view text) {
  text = skipBlanks(text);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// Whether `text` begins with `prefix`, which is ASCII in lower case.
inline bool beginsWith(std::string_view text, std::string_view prefix) {
  if (text.size() < prefix.size()) return false;
  for (std::size_t i = 0; i < prefix.size(); ++i) {
    const char c = text[i];
    if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c) != prefix[i]) return false;
  }
  return true;
}

/// Whether `text` is `keyword`, which is ASCII in lower case.
inline bool isKeyword(std::string_view text, std::string_view keyword) {
  return text.size() == keyword.size() && beginsWith(text, keyword);
}

/// Cuts the identifier at the start of `rest`, and the blanks before it. Empty if there is none.
inline std::string_view takeWord(std::string_view& rest) {
  rest = skipBlanks(rest);
  std::size_t length = 0;
  while (length < rest.size() && isNameCharacter(rest[length])) ++length;
  const std::string_view word = rest.substr(0, length);
  rest.remove_prefix(length);
  return word;
}

/// Cuts what stands before the next blank, and the blanks before that.
inline std::string_view takeField(std::string_view& rest) {
  rest = skipBlanks(rest);
  std::size_t length = 0;
  while (length < rest.size() && !isBlank(rest[length])) ++length;
  const std::string_view field = rest.substr(0, length);
  rest.remove_prefix(length);
  return field;
}

}  // namespace tamrikon
