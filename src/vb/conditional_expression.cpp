#include "vb/conditional_expression.h"

#include <optional>

#include "base/text.h"
#include "vb/scanning.h"

namespace tamrikon {
namespace {

enum class Operator {
  none,
  imp,
  eqv,
  xor_,
  or_,
  and_,
  equal,
  unequal,
  less,
  greater,
  lessOrEqual,
  greaterOrEqual,
  plus,
  minus,
  mod,
  integerDivision,
  times,
  division,
};

struct OperatorEntry {
  std::string_view text;  // words in lower case; longer signs before those that they begin with
  Operator op;
  int binding;
};

constexpr OperatorEntry kOperators[] = {
    {"imp", Operator::imp, 1},
    {"eqv", Operator::eqv, 2},
    {"xor", Operator::xor_, 3},
    {"or", Operator::or_, 4},
    {"and", Operator::and_, 5},
    {"<>", Operator::unequal, 7},
    {"><", Operator::unequal, 7},
    {"<=", Operator::lessOrEqual, 7},
    {"=<", Operator::lessOrEqual, 7},
    {">=", Operator::greaterOrEqual, 7},
    {"=>", Operator::greaterOrEqual, 7},
    {"=", Operator::equal, 7},
    {"<", Operator::less, 7},
    {">", Operator::greater, 7},
    {"+", Operator::plus, 8},
    {"-", Operator::minus, 8},
    {"mod", Operator::mod, 9},
    {"\\", Operator::integerDivision, 10},
    {"*", Operator::times, 11},
    {"/", Operator::division, 11},
};
constexpr int kNotBinding = 6;
constexpr int kSignBinding = 12;
constexpr int kMaxDepth = 200;

/// Reads by operator precedence. A fault anywhere makes every operation from there on fail.
class Evaluator {
 public:
  Evaluator(std::string_view text, const ConditionalConstants& constants)
      : rest_(text), constants_(constants) {}

  std::optional<std::int32_t> whole() {
    const std::optional<std::int32_t> value = expression(0);
    if (!skipBlanks(rest_).empty()) return std::nullopt;
    return value;
  }

 private:
  std::optional<std::int32_t> expression(int minBinding) {
    if (++depth_ > kMaxDepth) return std::nullopt;
    std::optional<std::int32_t> left = operand();
    while (left) {
      const std::string_view before = rest_;
      const OperatorEntry* entry = takeOperator();
      if (entry == nullptr || entry->binding <= minBinding) {
        rest_ = before;
        break;
      }
      const std::optional<std::int32_t> right = expression(entry->binding);
      left = right ? apply(entry->op, *left, *right) : std::nullopt;
    }
    --depth_;
    return left;
  }

  std::optional<std::int32_t> operand() {
    rest_ = skipBlanks(rest_);
    if (rest_.empty()) return std::nullopt;
    const char c = rest_.front();
    if (c == '(') return parenthesised();
    if (c == '-' || c == '+') {
      rest_.remove_prefix(1);
      const auto value = expression(kSignBinding);
      if (!value || c == '+') return value;
      return apply(Operator::minus, 0, *value);
    }
    if (isDigit(c) || c == '&') return number();
    const std::string_view word = takeWord(rest_);
    if (word.empty()) return std::nullopt;
    if (isKeyword(word, "not")) {
      const auto value = expression(kNotBinding);
      if (!value) return value;
      return ~*value;
    }
    return constants_.value(word);
  }

  std::optional<std::int32_t> parenthesised() {
    rest_.remove_prefix(1);
    const auto value = expression(0);
    rest_ = skipBlanks(rest_);
    if (!value || !rest_.starts_with(')')) return std::nullopt;
    rest_.remove_prefix(1);
    return value;
  }

  std::optional<std::int32_t> number() {
    unsigned base = 10;
    if (beginsWith(rest_, "&h")) base = 16;
    if (beginsWith(rest_, "&o")) base = 8;
    if (base != 10) rest_.remove_prefix(2);
    const std::uint64_t limit = base == 10 ? 0x80000000U : 0xFFFFFFFFU;
    std::uint64_t value = 0;
    const std::size_t length = rest_.size();
    for (; !rest_.empty(); rest_.remove_prefix(1)) {
      const unsigned digit = digitValue(rest_.front());
      if (digit >= base) break;
      value = value * base + digit;
      if (value > limit) return std::nullopt;
    }
    if (rest_.size() == length) return std::nullopt;
    const std::string_view suffixes = base == 10 ? "&%!#@" : "&%";
    if (!rest_.empty() && suffixes.find(rest_.front()) != std::string_view::npos) {
      rest_.remove_prefix(1);
    }
    if (!rest_.empty() && isNameCharacter(rest_.front())) return std::nullopt;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
  }

  static unsigned digitValue(char c) {
    if (isDigit(c)) return static_cast<unsigned>(c - '0');
    if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a') + 10;
    if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A') + 10;
    return 99;
  }

  const OperatorEntry* takeOperator() {
    rest_ = skipBlanks(rest_);
    std::string_view behindWord = rest_;
    const std::string_view word = takeWord(behindWord);
    for (const OperatorEntry& entry : kOperators) {
      if (word.empty() ? rest_.starts_with(entry.text) : isKeyword(word, entry.text)) {
        rest_.remove_prefix(entry.text.size());
        return &entry;
      }
    }
    return nullptr;
  }

  static std::optional<std::int32_t> apply(Operator op, std::int32_t left, std::int32_t right) {
    const auto a = static_cast<std::uint32_t>(left);
    const auto b = static_cast<std::uint32_t>(right);
    const auto wrapped = [](std::uint32_t value) { return static_cast<std::int32_t>(value); };
    const auto truth = [](bool holds) { return holds ? -1 : 0; };
    switch (op) {
      case Operator::imp: return ~left | right;
      case Operator::eqv: return ~(left ^ right);
      case Operator::xor_: return left ^ right;
      case Operator::or_: return left | right;
      case Operator::and_: return left & right;
      case Operator::equal: return truth(left == right);
      case Operator::unequal: return truth(left != right);
      case Operator::less: return truth(left < right);
      case Operator::greater: return truth(left > right);
      case Operator::lessOrEqual: return truth(left <= right);
      case Operator::greaterOrEqual: return truth(left >= right);
      case Operator::plus: return wrapped(a + b);
      case Operator::minus: return wrapped(a - b);
      case Operator::times: return wrapped(a * b);
      case Operator::mod:
      case Operator::integerDivision:
      case Operator::division: return divide(op, left, right);
      case Operator::none: break;
    }
    return std::nullopt;
  }

  static std::optional<std::int32_t> divide(Operator op, std::int64_t left, std::int64_t right) {
    if (right == 0) return std::nullopt;
    const std::int64_t value = op == Operator::mod ? left % right : left / right;
    return static_cast<std::int32_t>(value);
  }

  std::string_view rest_;
  const ConditionalConstants& constants_;
  int depth_ = 0;
};

}  // namespace

std::int32_t evaluateConditional(std::string_view expression,
                                 const ConditionalConstants& constants) {
  return Evaluator(expression, constants).whole().value_or(0);
}

void defineConditionalConstant(std::string_view text, ConditionalConstants& constants) {
  const std::string_view name = takeWord(text);
  text = skipBlanks(text);
  if (name.empty() || !text.starts_with('=')) return;
  constants.set(name, evaluateConditional(text.substr(1), constants));
}

ConditionalConstants readConditionalConstants(std::string_view text) {
  ConditionalConstants constants;
  for (const std::string_view piece : split(text, ':')) {
    defineConditionalConstant(piece, constants);
  }
  return constants;
}

}  // namespace tamrikon
