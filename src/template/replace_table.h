// The template's character translation: pairs of a text to find and the text to put in its place.
#pragma once

#include <bitset>
#include <string>
#include <string_view>
#include <vector>

#include "template/expansion_budget.h"

namespace tamrikon {

class ReplaceTable {
 public:
  ReplaceTable() = default;

  /// `words` are taken in pairs; an odd last one has no effect, nor has an empty word to find.
  explicit ReplaceTable(const std::vector<std::string>& words);

  /// Appends `text`, translated, to `result`. The pairs work one after the other, each on what
  /// the one before it left, without regard to case. The first pair that would let the text grow
  /// beyond the budget ends the translation.
  void appendReplaced(std::string_view text, std::string& result, ExpansionBudget& budget) const;

 private:
  using ByteSet = std::bitset<256>;

  struct Pair {
    std::string find;
    std::string with;
    bool isExact;    // `find` has no letters: it equals only itself
    ByteSet begins;  // the bytes with which a match can begin
  };
  class Replacement;

  std::vector<Pair> pairs_;
  ByteSet begins_;  // of all pairs
};

/// `text` translated by the words of a replace table.
std::string replaceStrings(std::string_view text, const std::vector<std::string>& table);

}  // namespace tamrikon
