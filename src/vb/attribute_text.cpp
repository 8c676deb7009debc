#include "vb/attribute_text.h"

#include "base/text.h"
#include "base/utf8.h"
#include "vb/scanning.h"

namespace tamrikon {
namespace {

constexpr std::string_view kWrittenBreak = "\\r\\n";

bool isLineBreak(char c) {
  return c == '\r' || c == '\n';
}

/// Moves `offset`, at a CR or LF, behind the line break.
void skipLineBreak(std::string_view text, std::size_t& offset) {
  offset += text.substr(offset, 2) == "\r\n" ? 2 : 1;
}

}  // namespace

std::string readAttributeText(std::string_view value) {
  std::string text;
  if (!value.starts_with('"')) return text;
  for (std::size_t i = 1; i < value.size(); ++i) {
    if (value[i] == '"' && value.substr(i + 1, 1) != "\"") break;
    if (value[i] == '"') ++i;
    text += value[i];
  }
  return replaceAll(text, kWrittenBreak, "\r\n");
}

std::string writtenAttributeText(std::string_view text) {
  std::string value = "\"";
  for (std::size_t i = 0; i < text.size();) {
    if (isLineBreak(text[i])) {
      value += kWrittenBreak;
      skipLineBreak(text, i);
    } else {
      value.append(text[i] == '"' ? 2 : 1, text[i]);
      ++i;
    }
  }
  return value + '"';
}

std::string_view fittingAttributeText(std::string_view text, std::size_t room) {
  std::size_t size = 2;  // of the quotes
  std::size_t wordEnd = 0;
  bool isInWord = false;
  for (std::size_t offset = 0; offset < text.size();) {
    const std::size_t start = offset;
    const char c = text[start];
    const bool wasInWord = isInWord;
    isInWord = !isBlank(c) && !isLineBreak(c);
    if (wasInWord && !isInWord) wordEnd = start;
    if (isLineBreak(c)) {
      skipLineBreak(text, offset);
      size += kWrittenBreak.size();
    } else {
      readCodePoint(text, offset);
      size += c == '"' ? 2 : 1;
    }
    if (size > room) return text.substr(0, wordEnd < start / 2 ? start : wordEnd);
  }
  return text;
}

}  // namespace tamrikon
