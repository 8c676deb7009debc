#include "vb/statements.h"

#include <algorithm>
#include <array>

#include "vb/scanning.h"
#include "vb/vb_text.h"

namespace tamrikon {
namespace {

constexpr std::array<bool, 256> kStops = [] {
  std::array<bool, 256> stops{};
  for (const char c : {'"', '\'', ':', '['}) stops[static_cast<unsigned char>(c)] = true;
  return stops;
}();

}  // namespace

bool LogicalLines::next() {
  const auto count = static_cast<int>(lines_.size());
  if (last_ == count) return false;
  first_ = ++last_;
  ++number_;
  text_ = lines_[static_cast<std::size_t>(first_ - 1)];
  if (!isContinued(text_)) return true;
  joined_.clear();
  starts_.clear();
  for (;;) {
    std::string_view line = lines_[static_cast<std::size_t>(last_ - 1)];
    const bool continues = isContinued(line);
    if (continues) line.remove_suffix(1);
    starts_.push_back(joined_.size());
    joined_ += line;
    if (!continues || last_ == count) break;
    ++last_;
  }
  text_ = joined_;
  return true;
}

int LogicalLines::lineAt(std::size_t offset) const {
  if (first_ == last_) return first_;
  const auto behind = std::upper_bound(starts_.begin(), starts_.end(), offset);
  return first_ + static_cast<int>(behind - starts_.begin()) - 1;
}

std::size_t skipLiteral(std::string_view text, std::size_t offset, bool& hasBrackets) {
  const bool isText = text[offset] == '"';
  if (!isText && (text[offset] != '[' || !hasBrackets)) return offset;
  // A doubled quote ends one literal and begins the next, which comes to the same.
  const std::size_t end = text.find(isText ? '"' : ']', offset + 1);
  if (end != std::string_view::npos) return end + 1;
  if (isText) return text.size();
  hasBrackets = false;
  return offset;
}

bool Statements::next() {
  if (atEnd_) return false;
  std::size_t start = next_;
  while (start < text_.size() && isBlank(text_[start])) ++start;
  std::size_t end = start;
  std::string_view rest = text_.substr(start);
  if (isKeyword(takeWord(rest), "rem")) {
    atEnd_ = true;
    return false;
  }
  atEnd_ = true;
  while (end < text_.size()) {
    const char c = text_[end];
    if (!kStops[static_cast<unsigned char>(c)]) {
      ++end;
      continue;
    }
    if (c == '\'') break;
    if (c == ':') {
      atEnd_ = false;
      break;
    }
    end = std::max(end + 1, skipLiteral(text_, end, hasBrackets_));
  }
  next_ = end + 1;
  statement_ = trimBlanks(text_.substr(start, end - start));
  if (!statement_.empty()) lastCode_ = offset() + statement_.size() - 1;
  if (!atEnd_) lastCode_ = end;
  return true;
}

}  // namespace tamrikon
