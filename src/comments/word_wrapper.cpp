#include "comments/word_wrapper.h"

#include <iterator>

#include "base/utf8.h"

namespace tamrikon {

std::vector<std::string> WordWrapper::makeWordWrapping(const std::vector<std::string>& lines,
                                                       int lineLength) const {
  std::vector<std::string> result;
  for (std::string line : lines) {
    std::vector<std::string> pieces = getWrappedLine(line, lineLength);
    result.insert(result.end(), std::make_move_iterator(pieces.begin()),
                  std::make_move_iterator(pieces.end()));
  }
  return result;
}

std::vector<std::string> WordWrapper::getWrappedLine(std::string& line, int maxLen) const {
  std::vector<std::string> pieces;
  std::string_view rest = line;
  do {
    const std::size_t position = findBreak(rest, maxLen);
    pieces.emplace_back(rest.substr(0, position == 0 ? rest.size() : position - 1));
    rest.remove_prefix(position == 0 ? rest.size() : position);
  } while (!rest.empty());
  line.clear();
  return pieces;
}

std::size_t WordWrapper::findBreak(std::string_view line, int maxLen) {
  if (maxLen <= 0) return 0;
  std::size_t limit = 0;  // where the first character beyond the width begins
  for (int n = 0; n < maxLen && limit < line.size(); ++n) readCodePoint(line, limit);
  if (limit >= line.size()) return 0;
  for (const char c : {' ', '\t'}) {
    if (const std::size_t at = line.rfind(c, limit); at != std::string_view::npos) return at + 1;
  }
  for (const char c : {' ', '\t'}) {
    if (const std::size_t at = line.find(c, limit); at != std::string_view::npos) return at + 1;
  }
  return 0;
}

}  // namespace tamrikon
