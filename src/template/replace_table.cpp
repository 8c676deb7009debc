#include "template/replace_table.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/case_folding.h"
#include "base/utf8.h"

namespace tamrikon {
namespace {

constexpr std::size_t kLongestImage = 256;  // bytes; beyond that a table is no translation

bool isAsciiLetter(char32_t c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The offset behind `count` code points that begin at `offset`.
std::size_t skipCodePoints(std::string_view text, std::size_t offset, std::size_t count) {
  for (; count > 0; --count) readCodePoint(text, offset);
  return offset;
}

/// The code points as the search without regard to case reads them, stray bytes being one each.
std::size_t countCodePoints(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t offset = 0; offset < text.size(); ++count) readCodePoint(text, offset);
  return count;
}

}  // namespace

/// One text on its way through the pairs.
class ReplaceTable::Replacement {
 public:
  Replacement(std::string_view text, std::size_t maxLength) : text_(text), maxLength_(maxLength) {}

  /// False if the text would grow too long; it then stays as it was.
  bool apply(const Pair& pair) { return pair.isSign ? replaceSign(pair) : replaceGeneral(pair); }

  const std::string& text() const { return text_; }

 private:
  bool replaceSign(const Pair& pair) {
    std::size_t offset = text_.find(pair.sign);
    if (offset == std::string::npos) return true;
    const std::string_view text = text_;
    std::string result;
    result.reserve(text.size() + text.size() / 4 + pair.with.size());
    std::size_t copied = 0;
    while (offset != std::string_view::npos) {
      std::size_t next = offset + 1;
      if (pair.codePoints == 1 || startsWithIgnoringCase(text.substr(offset), pair.find)) {
        next = skipCodePoints(text, offset, pair.codePoints);
        result.append(text, copied, offset - copied).append(pair.with);
        copied = next;
        if (result.size() > maxLength_) return false;
      }
      offset = text.find(pair.sign, next);
    }
    result.append(text, copied);
    if (result.size() > maxLength_) return false;
    text_ = std::move(result);
    return true;
  }

  bool replaceGeneral(const Pair& pair) {
    // Only where each character being a match would be too much does it pay to count them.
    if (!pair.with.empty() && text_.size() > maxLength_ / pair.with.size()) {
      const std::size_t without = replaceIgnoringCase(text_, pair.find, "").size();
      const std::size_t matches = replaceIgnoringCase(text_, pair.find, ".").size() - without;
      if (matches > (maxLength_ - without) / pair.with.size()) return false;
    }
    text_ = replaceIgnoringCase(text_, pair.find, pair.with);
    return true;
  }

  std::string text_;
  std::size_t maxLength_;
};

ReplaceTable::ReplaceTable(const std::vector<std::string>& words) {
  for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
    const std::string& find = words[i];
    if (find.empty()) continue;
    std::size_t offset = 0;
    const char32_t first = lowerCase(readCodePoint(find, offset));
    const bool isSign = first < 0x80 && !isAsciiLetter(first);
    pairs_.push_back({find, words[i + 1], find.front(), isSign, countCodePoints(find)});
    if (first < 0x80) {
      begins_[first] = true;
      if (!isSign) begins_[first - 'a' + 'A'] = true;
    }
    // A few letters beyond ASCII have an ASCII letter as their lower case.
    if (!isSign) std::fill(begins_.begin() + 0x80, begins_.end(), true);
  }
  makeImages();
}

void ReplaceTable::makeImages() {
  const bool isPossible = std::all_of(pairs_.begin(), pairs_.end(), [](const Pair& pair) {
    return pair.isSign && pair.codePoints == 1;
  });
  if (!isPossible) return;
  std::size_t longest = 1;
  for (std::size_t c = 0; c < images_.size(); ++c) {
    if (!begins_[c]) continue;
    Replacement replacement(std::string(1, static_cast<char>(c)), kLongestImage);
    for (const Pair& pair : pairs_) {
      if (!replacement.apply(pair)) return;
    }
    images_[c] = replacement.text();
    longest = std::max(longest, images_[c].size());
  }
  longestImage_ = longest;
}

void ReplaceTable::appendImages(std::string_view text, std::string& result) const {
  std::size_t copied = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!mayBegin(text[i])) continue;
    result.append(text, copied, i - copied).append(images_[static_cast<unsigned char>(text[i])]);
    copied = i + 1;
  }
  result.append(text, copied);
}

void ReplaceTable::appendReplaced(std::string_view text, std::string& result,
                                  ExpansionBudget& budget) const {
  const std::size_t start = result.size();
  if (longestImage_ > 0 && text.size() <= budget.textLeft() / longestImage_) {
    appendImages(text, result);
  } else if (std::any_of(text.begin(), text.end(), [this](char c) { return mayBegin(c); })) {
    Replacement replacement(text, text.size() + budget.textLeft());
    for (const Pair& pair : pairs_) {
      if (!replacement.apply(pair)) break;
    }
    result += replacement.text();
  } else {
    result += text;
  }
  const std::size_t length = result.size() - start;
  if (length > text.size()) budget.takeText(length - text.size());
}

std::string replaceStrings(std::string_view text, const std::vector<std::string>& table) {
  std::string result;
  ExpansionBudget budget;
  ReplaceTable(table).appendReplaced(text, result, budget);
  return result;
}

}  // namespace tamrikon
