#include "vb/conditional_compilation.h"

#include "vb/scanning.h"

namespace tamrikon {

bool ConditionalCompilation::take(std::string_view statement) {
  if (!statement.starts_with('#')) return false;
  statement.remove_prefix(1);
  const std::string_view word = takeWord(statement);
  if (isKeyword(word, "if")) {
    // Without a live branch around it, none of its own can count.
    const bool canCount = isLive();
    const bool counts = canCount && holds(statement);
    branches_.push_back({counts, counts || !canCount});
  } else if (isKeyword(word, "elseif") || isKeyword(word, "else")) {
    if (branches_.empty()) return true;
    Branch& branch = branches_.back();
    const bool isLast = isKeyword(word, "else");
    branch.isLive = !branch.isDecided && (isLast || holds(statement));
    branch.isDecided = branch.isDecided || branch.isLive || isLast;
  } else if (isKeyword(word, "end")) {
    if (!isKeyword(takeWord(statement), "if")) return false;
    if (!branches_.empty()) branches_.pop_back();
  } else if (isKeyword(word, "const")) {
    if (isLive()) defineConditionalConstant(statement, constants_);
  } else {
    return false;
  }
  return true;
}

bool ConditionalCompilation::holds(std::string_view condition) const {
  condition = trimBlanks(condition);
  constexpr std::string_view kThen = "then";
  if (condition.size() > kThen.size()) {
    const std::size_t start = condition.size() - kThen.size();
    if (isKeyword(condition.substr(start), kThen) && !isNameCharacter(condition[start - 1])) {
      condition.remove_suffix(kThen.size());
    }
  }
  return evaluateConditional(condition, constants_) != 0;
}

}  // namespace tamrikon
