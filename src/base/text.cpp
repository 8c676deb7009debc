#include "base/text.h"

namespace tamrikon {

std::string_view trimLeading(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view trimTrailing(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view trim(std::string_view text) {
  return trimLeading(trimTrailing(text));
}

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  for (;;) {
    const std::size_t end = text.find(separator);
    pieces.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return pieces;
    text.remove_prefix(end + 1);
  }
}

std::string join(const std::vector<std::string>& pieces, std::string_view separator) {
  std::string result;
  for (const std::string& piece : pieces) {
    if (&piece != &pieces.front()) result += separator;
    result += piece;
  }
  return result;
}

std::string replaceAll(std::string_view text, std::string_view find, std::string_view with) {
  std::string result;
  result.reserve(text.size());
  for (;;) {
    const std::size_t at = text.find(find);
    result += text.substr(0, at);
    if (at == std::string_view::npos) return result;
    result += with;
    text.remove_prefix(at + find.size());
  }
}

std::string doubleDollars(std::string_view text) {
  return replaceAll(text, "$", "$$");
}

std::string_view cutField(std::string_view& text, char separator) {
  const std::size_t end = text.find(separator);
  const std::string_view field = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return field;
}

}  // namespace tamrikon
