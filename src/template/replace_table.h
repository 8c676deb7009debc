// The template's character translation: pairs of a text to find and the text to put in its place.
#pragma once

#include <array>
#include <cstddef>
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
  struct Pair {
    std::string find;
    std::string with;
    char sign;               // what `find` begins with, if isSign
    bool isSign;             // an ASCII character that isn't a letter: it equals only itself
    std::size_t codePoints;  // of `find`
  };
  class Replacement;

  void makeImages();
  void appendImages(std::string_view text, std::string& result) const;
  bool mayBegin(char c) const { return begins_[static_cast<unsigned char>(c)]; }

  std::vector<Pair> pairs_;
  std::array<bool, 256> begins_{};  // the bytes with which a match of any pair can begin

  // If each pair finds a single sign, the pairs work on every character for itself. Then this is
  // what they make of it, and one pass does for all.
  std::array<std::string, 128> images_;
  std::size_t longestImage_ = 0;  // 0: the pairs have to work one after the other
};

/// `text` translated by the words of a replace table.
std::string replaceStrings(std::string_view text, const std::vector<std::string>& table);

}  // namespace tamrikon
