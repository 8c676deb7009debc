// The template's character translation: pairs of a text to find and the text to put in its place.
#pragma once

#include <array>
#include <cstdint>
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
  /// beyond the budget ends the translation: the result is then false.
  bool appendReplaced(std::string_view text, std::string& result, ExpansionBudget& budget);

 private:
  /// A bit for each pair; those from the 64th on share the last one.
  using PairSet = std::uint64_t;

  struct Pair {
    std::string find;
    std::string with;
    bool isExact;     // `find` has no letters: it equals only itself
    PairSet self;     // its bit
    PairSet enables;  // the pairs of which a match can begin in `with`
  };

  PairSet beginningIn(std::string_view text) const;
  // What the pair makes of `text`: that itself, or a view of work_.
  std::string_view replaceExact(const Pair& pair, std::string_view text, std::size_t maxLength);
  std::string_view replaceGeneral(const Pair& pair, std::string_view text, std::size_t maxLength);

  std::vector<Pair> pairs_;
  std::array<PairSet, 256> beginWith_{};  // by byte: the pairs of which a match can begin there

  // What the last pair that found something made of the text, and what the next one makes of that.
  // They are kept, as pages bring thousands of short texts.
  std::string work_;
  std::string next_;
  bool isWhole_ = true;  // no pair was left out
};

/// `text` translated by the words of a replace table.
std::string replaceStrings(std::string_view text, const std::vector<std::string>& table);

}  // namespace tamrikon
