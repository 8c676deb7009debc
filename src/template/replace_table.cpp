#include "template/replace_table.h"

#include <algorithm>
#include <utility>

#include "base/case_folding.h"
#include "base/utf8.h"

namespace tamrikon {
namespace {

std::size_t byteOf(char c) { return static_cast<unsigned char>(c); }

bool hasNoLetters(std::string_view text) {
  for (std::size_t offset = 0; offset < text.size();) {
    const std::size_t start = offset;
    const char32_t codePoint = readCodePoint(text, offset);
    const bool isStrayByte = codePoint >= 0x80 && offset - start == 1;
    if (isStrayByte || !isCaseless(codePoint)) return false;
  }
  return true;
}

}  // namespace

/// One text on its way through the pairs. Pairs that can't begin anywhere in it are passed over:
/// most pairs of a table find nothing.
class ReplaceTable::Replacement {
 public:
  Replacement(std::string_view text, PairSet possible, std::size_t maxLength)
      : text_(text), possible_(possible), maxLength_(maxLength) {}

  /// Does nothing if the text would grow too long.
  void apply(const Pair& pair) {
    if ((possible_ & pair.self) == 0) return;
    if (pair.isExact) {
      replaceExact(pair);
    } else {
      replaceGeneral(pair);
    }
    possible_ |= pair.enables;
  }

  const std::string& text() const { return text_; }

 private:
  void replaceExact(const Pair& pair) {
    std::string result;
    std::size_t copied = 0;
    for (;;) {
      const std::size_t at = text_.find(pair.find, copied);
      if (at == std::string::npos) break;
      result.append(text_, copied, at - copied).append(pair.with);
      if (result.size() > maxLength_) return;
      copied = at + pair.find.size();
    }
    if (copied == 0 || result.size() + text_.size() - copied > maxLength_) return;
    text_ = std::move(result.append(text_, copied));
  }

  void replaceGeneral(const Pair& pair) {
    // Only where each character being a match would be too much does it pay to count them.
    if (!pair.with.empty() && text_.size() > maxLength_ / pair.with.size()) {
      const std::size_t without = replaceIgnoringCase(text_, pair.find, "").size();
      const std::size_t matches = replaceIgnoringCase(text_, pair.find, ".").size() - without;
      if (matches > (maxLength_ - without) / pair.with.size()) return;
    }
    text_ = replaceIgnoringCase(text_, pair.find, pair.with);
  }

  std::string text_;
  PairSet possible_;
  std::size_t maxLength_;
};

ReplaceTable::ReplaceTable(const std::vector<std::string>& words) {
  constexpr std::size_t kLastBit = 63;
  for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
    const std::string& find = words[i];
    if (find.empty()) continue;
    const PairSet self = PairSet{1} << std::min(pairs_.size(), kLastBit);
    const bool isExact = hasNoLetters(find);
    std::size_t offset = 0;
    const char32_t first = lowerCase(readCodePoint(find, offset));
    if (isExact || first < 0x80) beginWith_[byteOf(find.front())] |= self;
    if (first >= 'a' && first <= 'z') {
      beginWith_[first] |= self;
      beginWith_[first - 'a' + 'A'] |= self;
    }
    // A letter beyond ASCII can be written otherwise, and a few have an ASCII letter as lower case.
    if (!isExact) {
      for (std::size_t byte = 0x80; byte < beginWith_.size(); ++byte) beginWith_[byte] |= self;
    }
    pairs_.push_back({find, words[i + 1], isExact, self, 0});
  }
  for (Pair& pair : pairs_) pair.enables = beginningIn(pair.with);
}

ReplaceTable::PairSet ReplaceTable::beginningIn(std::string_view text) const {
  PairSet pairs = 0;
  for (const char c : text) pairs |= beginWith_[byteOf(c)];
  return pairs;
}

void ReplaceTable::appendReplaced(std::string_view text, std::string& result,
                                  ExpansionBudget& budget) const {
  const PairSet possible = beginningIn(text);
  if (possible == 0) {
    result += text;
    return;
  }
  Replacement replacement(text, possible, text.size() + budget.textLeft());
  for (const Pair& pair : pairs_) replacement.apply(pair);
  const std::size_t length = replacement.text().size();
  result += replacement.text();
  if (length > text.size()) budget.takeText(length - text.size());
}

std::string replaceStrings(std::string_view text, const std::vector<std::string>& table) {
  std::string result;
  ExpansionBudget budget;
  ReplaceTable(table).appendReplaced(text, result, budget);
  return result;
}

}  // namespace tamrikon
