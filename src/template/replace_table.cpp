#include "template/replace_table.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "base/case_folding.h"
#include "base/utf8.h"

namespace tamrikon {
namespace {

constexpr std::size_t kLastBit = 63;  // that the pairs from there on share
constexpr std::size_t kFairGrowth = 16;

std::size_t byteOf(char c) {
  return static_cast<unsigned char>(c);
}

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

ReplaceTable::ReplaceTable(const std::vector<std::string>& words) {
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
  const char* at = text.data();
  const char* const end = at + text.size();
  // Four at a time: all that users wrote passes here.
  for (; end - at >= 4; at += 4) {
    pairs |= beginWith_[byteOf(at[0])] | beginWith_[byteOf(at[1])] | beginWith_[byteOf(at[2])] |
             beginWith_[byteOf(at[3])];
  }
  for (; at != end; ++at) pairs |= beginWith_[byteOf(*at)];
  return pairs;
}

bool ReplaceTable::appendReplaced(std::string_view text, std::string& result,
                                  ExpansionBudget& budget) {
  PairSet possible = beginningIn(text);
  if (possible == 0) {
    result += text;
    return true;
  }
  isWhole_ = true;
  const std::size_t maxLength = text.size() + budget.textLeft();
  std::string_view replaced = text;
  for (std::size_t i = 0; i < pairs_.size(); ++i) {
    // On to the next pair that can begin anywhere: most of a table find nothing.
    if (i < kLastBit) {
      const PairSet later = possible >> i;
      if (later == 0) break;
      i += static_cast<std::size_t>(std::countr_zero(later));
    }
    const Pair& pair = pairs_[i];
    if ((possible & pair.self) == 0) continue;
    // Pairs that make the text longer and longer have to pay for each walk through it.
    if (replaced.size() / kFairGrowth > text.size() && !budget.takeText(replaced.size())) {
      isWhole_ = false;
      break;
    }
    replaced = pair.isExact ? replaceExact(pair, replaced, maxLength)
                            : replaceGeneral(pair, replaced, maxLength);
    possible |= pair.enables;
  }
  result += replaced;
  if (replaced.size() > text.size()) budget.takeText(replaced.size() - text.size());
  return isWhole_;
}

std::string_view ReplaceTable::replaceExact(const Pair& pair, std::string_view text,
                                            std::size_t maxLength) {
  const std::string_view find = pair.find;
  const auto next = [&](std::size_t from) {
    return find.size() == 1 ? text.find(find.front(), from) : text.find(find, from);
  };
  std::size_t at = next(0);
  if (at == std::string_view::npos) return text;
  std::size_t copied = 0;
  next_.clear();
  for (; at != std::string_view::npos; at = next(copied)) {
    next_.append(text.substr(copied, at - copied)).append(pair.with);
    if (next_.size() > maxLength) break;
    copied = at + find.size();
  }
  if (next_.size() + text.size() - copied > maxLength) {
    isWhole_ = false;
    return text;
  }
  next_.append(text.substr(copied));
  work_.swap(next_);
  return work_;
}

std::string_view ReplaceTable::replaceGeneral(const Pair& pair, std::string_view text,
                                              std::size_t maxLength) {
  // Only where each character being a match would be too much does it pay to count them.
  if (!pair.with.empty() && text.size() > maxLength / pair.with.size()) {
    const std::size_t without = replaceIgnoringCase(text, pair.find, "").size();
    const std::size_t matches = replaceIgnoringCase(text, pair.find, ".").size() - without;
    if (matches > (maxLength - without) / pair.with.size()) {
      isWhole_ = false;
      return text;
    }
  }
  work_ = replaceIgnoringCase(text, pair.find, pair.with);
  return work_;
}

std::string replaceStrings(std::string_view text, const std::vector<std::string>& table) {
  std::string result;
  ExpansionBudget budget;
  ReplaceTable(table).appendReplaced(text, result, budget);
  return result;
}

}  // namespace tamrikon
