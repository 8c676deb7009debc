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

/// One text on its way through the pairs. A text without any of the bytes that a match can begin
/// with is left at once: most pairs of a table find nothing.
class ReplaceTable::Replacement {
 public:
  Replacement(std::string_view text, const ByteSet& bytes, std::size_t maxLength)
      : text_(text), bytes_(bytes), maxLength_(maxLength) {}

  /// Does nothing if the text would grow too long.
  void apply(const Pair& pair) {
    if ((bytes_ & pair.begins).none()) return;
    if (pair.isExact) {
      replaceExact(pair);
    } else {
      replaceGeneral(pair);
    }
    for (const char c : pair.with) bytes_.set(byteOf(c));
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
  ByteSet bytes_;  // those that the text holds, and perhaps some that it held before
  std::size_t maxLength_;
};

ReplaceTable::ReplaceTable(const std::vector<std::string>& words) {
  for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
    const std::string& find = words[i];
    if (find.empty()) continue;
    Pair pair{find, words[i + 1], hasNoLetters(find), {}};
    std::size_t offset = 0;
    const char32_t first = lowerCase(readCodePoint(find, offset));
    if (pair.isExact || first < 0x80) pair.begins.set(byteOf(find.front()));
    if (first >= 'a' && first <= 'z') pair.begins.set(first).set(first - 'a' + 'A');
    // A letter beyond ASCII can be written otherwise, and a few have an ASCII letter as lower case.
    if (!pair.isExact) {
      for (std::size_t byte = 0x80; byte < pair.begins.size(); ++byte) pair.begins.set(byte);
    }
    begins_ |= pair.begins;
    pairs_.push_back(std::move(pair));
  }
}

void ReplaceTable::appendReplaced(std::string_view text, std::string& result,
                                  ExpansionBudget& budget) const {
  ByteSet bytes;
  for (const char c : text) bytes.set(byteOf(c));
  if ((bytes & begins_).none()) {
    result += text;
    return;
  }
  Replacement replacement(text, bytes, text.size() + budget.textLeft());
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
