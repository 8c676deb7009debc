#include "base/line_reader.h"

#include <algorithm>

namespace tamrikon {

std::string_view textOf(LineEnd end) {
  constexpr std::string_view kTexts[] = {"", "\r", "\n", "\r\n"};
  return kTexts[static_cast<std::size_t>(end)];
}

std::size_t LineReader::find(char c, std::size_t& known) const {
  if (!started_ || known < offset_) known = std::min(text_.find(c, offset_), text_.size());
  return known;
}

bool LineReader::next() {
  if (offset_ >= text_.size()) return false;
  const std::size_t cr = find('\r', nextCr_);
  const std::size_t lf = find('\n', nextLf_);
  started_ = true;
  const std::size_t stop = std::min(cr, lf);
  line_ = text_.substr(offset_, stop - offset_);
  if (stop == text_.size()) {
    end_ = LineEnd::none;
  } else if (lf < cr) {
    end_ = LineEnd::lf;
  } else {
    end_ = lf == cr + 1 && lf < text_.size() ? LineEnd::crLf : LineEnd::cr;
  }
  offset_ = stop + textOf(end_).size();
  return true;
}

LineEnd firstLineEnd(std::string_view text) {
  LineReader reader(text);
  return reader.next() && reader.end() != LineEnd::none ? reader.end() : LineEnd::crLf;
}

std::vector<std::string_view> dividedLines(std::string_view text) {
  std::vector<std::string_view> lines;
  LineReader reader(text);
  bool endsInLine = false;
  while (reader.next()) {
    lines.push_back(reader.line());
    endsInLine = reader.end() == LineEnd::none;
  }
  if (!endsInLine) lines.push_back(text.substr(text.size()));
  return lines;
}

}  // namespace tamrikon
