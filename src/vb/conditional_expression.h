// The expressions of #If, #ElseIf and #Const.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "base/case_folding.h"

namespace tamrikon {

/// The constants of conditional compilation; names ignore case.
class ConditionalConstants {
 public:
  /// Win32, VBA6 and True are there from the start.
  ConditionalConstants() : values_{{"Win32", -1}, {"VBA6", -1}, {"True", -1}} {}

  void set(std::string_view name, std::int32_t value) { values_[std::string(name)] = value; }

  /// 0 for a name that nothing defines.
  std::int32_t value(std::string_view name) const {
    const auto found = values_.find(name);
    return found == values_.end() ? 0 : found->second;
  }

 private:
  std::unordered_map<std::string, std::int32_t, CaseInsensitiveHash, CaseInsensitiveEqual> values_;
};

/// The value of `expression`, in 32-bit arithmetic that wraps round; division drops the fraction.
/// 0 for what can't be read, also if it divides by zero or nests deeper than 200 levels.
std::int32_t evaluateConditional(std::string_view expression,
                                 const ConditionalConstants& constants);

/// The constants of a project, from `NAME = value` divided by ":".
ConditionalConstants readConditionalConstants(std::string_view text);

/// Reads `NAME = expression` into `constants`; a text without a name is passed over.
void defineConditionalConstant(std::string_view text, ConditionalConstants& constants);

}  // namespace tamrikon
