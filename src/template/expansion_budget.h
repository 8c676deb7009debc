// How much one outermost evaluateMacro may do, so that no template runs away.
#pragma once

#include <cstddef>
#include <stdexcept>

namespace tamrikon {

/// An expansion would go beyond its budget; the text says which one, and where.
class BudgetUsedUp : public std::length_error {
 public:
  using std::length_error::length_error;
};

class ExpansionBudget {
 public:
  /// Calls of evaluateMacro inside of each other, the outermost one included.
  static constexpr int kMaxDepth = 200;
  /// Nested calls. Each item of a list macro counts as one too.
  static constexpr std::size_t kMaxCalls = 20'000'000;
  /// Bytes of text, counted as each text is begun: the values of called macros, list items,
  /// what the replace table adds, and messages.
  static constexpr std::size_t kMaxText = std::size_t{256} << 20;

  ExpansionBudget() = default;
  ExpansionBudget(std::size_t calls, std::size_t text) : calls_(calls), text_(text) {}

  /// Takes `count` calls that expand `bytes` of text altogether. False, and nothing is taken, if
  /// less is left.
  bool takeCalls(std::size_t count, std::size_t bytes) {
    if (count > calls_ || bytes > text_) return false;
    calls_ -= count;
    text_ -= bytes;
    return true;
  }
  bool takeText(std::size_t bytes) { return takeCalls(0, bytes); }

  std::size_t textLeft() const { return text_; }

 private:
  std::size_t calls_ = kMaxCalls;
  std::size_t text_ = kMaxText;
};

}  // namespace tamrikon
