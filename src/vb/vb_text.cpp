#include "vb/vb_text.h"

#include <algorithm>

#include "base/text.h"

namespace tamrikon {
namespace {

std::size_t smallerFound(std::size_t a, std::size_t b) {
  if (a == 0 || b == 0) return std::max(a, b);
  return std::min(a, b);
}

}  // namespace

std::size_t inStrOutsideQuotes(std::string_view text, std::string_view word, std::size_t start) {
  if (start < 1) return 0;
  const bool any = word.empty();
  for (std::size_t i = start - 1; i < text.size(); ++i) {
    if ((any || text[i] == word.front()) && text.substr(i).starts_with(word)) return i + 1;
    if (text[i] != '"') continue;
    for (++i; i < text.size(); ++i) {
      if (text[i] != '"') continue;
      if (i + 1 >= text.size() || text[i + 1] != '"') break;
      ++i;
    }
  }
  return 0;
}

std::string_view stripLineComment(std::string_view text) {
  const std::size_t comment = inStrOutsideQuotes(text, "'");
  if (comment != 0) text = text.substr(0, comment - 1);
  return trimTrailing(text);
}

std::size_t firstWhitespace(std::string_view text) {
  // Words are short: a search for each character that may end them would cost more.
  const auto end =
      std::find_if(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\t'; });
  return end == text.end() ? 0 : static_cast<std::size_t>(end - text.begin()) + 1;
}

std::size_t firstWhitespaceOutsideStrings(std::string_view text) {
  return smallerFound(inStrOutsideQuotes(text, " "), inStrOutsideQuotes(text, "\t"));
}

bool isContinued(std::string_view line) {
  return line.ends_with(" _");
}

}  // namespace tamrikon
