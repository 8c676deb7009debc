#include "vb/proc_definition.h"

#include <algorithm>

#include "base/text.h"
#include "vb/vb_text.h"

namespace tamrikon {
namespace {

constexpr std::string_view kAs = " As ";
constexpr std::string_view kSeparator = ", ";

std::string_view suffixOfType(std::string_view type) {
  if (type == "Integer") return "%";
  if (type == "Long") return "&";
  if (type == "Currency") return "@";
  if (type == "Double") return "#";
  if (type == "Single") return "!";
  return {};
}

}  // namespace

void ProcDefinition::parse() {
  pLine.resize(stripLineComment(pLine).size());
  pType = parseProcType();
  returns = parseProcReturn();
  args = parseArgs();
}

void ProcDefinition::parsePropGetReturn() {
  pType = "Property Get";
  returns = parseProcReturn();
}

void ProcDefinition::parseVariableReturn() {
  const std::size_t as = pLine.find(kAs);
  if (as == std::string::npos) {
    returns = "Variant";
    return;
  }
  std::string_view type = std::string_view(pLine).substr(as + kAs.size());
  type = trimLeading(stripLineComment(type));
  if (constexpr std::string_view kNew = "New "; type.starts_with(kNew)) {
    type.remove_prefix(kNew.size());
  }
  returns = type;
}

void ProcDefinition::parseConstantReturn() {
  constexpr std::string_view kConst = "Const ";
  const std::size_t word = pLine.find(kConst);
  returns.clear();
  if (word == std::string::npos) return;
  argument constant;
  constant.parse(
      stripLineComment(trimLeading(std::string_view(pLine).substr(word + kConst.size()))));
  returns = suffixOfType(constant.aType);
  returns += constant.aDefault;
}

std::vector<argument> ProcDefinition::parseArgs() {
  std::vector<argument> result;
  const std::size_t close = endOfArgs();
  if (close == 0) return result;
  const std::size_t first = pLine.find('(') + 1;
  std::string_view text = std::string_view(pLine).substr(first, close - 1 - first);
  while (!text.empty()) {
    const std::size_t separator = inStrOutsideQuotes(text, kSeparator);
    if (separator == 0) {
      result.emplace_back().parse(text);
      break;
    }
    result.emplace_back().parse(text.substr(0, separator - 1));
    text.remove_prefix(separator - 1 + kSeparator.size());
  }
  return result;
}

std::size_t ProcDefinition::endOfArgs() {
  if (!endOfArgs_) endOfArgs_ = findTerminatingParenth(pLine, pLine.find('(') + 1);
  return *endOfArgs_;
}

std::size_t ProcDefinition::findTerminatingParenth(std::string_view str, std::size_t start) {
  // Each "(" before the candidate pushes the search on by one ")".
  std::size_t close = inStrOutsideQuotes(str, ")", start);
  while (close != 0) {
    const std::size_t inner = inStrOutsideQuotes(str, "(", start + 1);
    start = close + 1;
    if (inner == 0 || inner >= close) break;
    close = inStrOutsideQuotes(str, ")", start);
  }
  return close;
}

std::string ProcDefinition::parseProcType() const {
  const std::size_t open = pLine.find('(');
  if (open != std::string::npos) {
    const std::string_view head = trimTrailing(std::string_view(pLine).substr(0, open));
    for (const char* type :
         {"Sub", "Function", "Property Get", "Property Set", "Property Let", "Event"}) {
      if (head.find(type + std::string(" ")) != std::string_view::npos) return type;
    }
  }
  return "Event";
}

std::string ProcDefinition::parseProcReturn() {
  const std::string_view rest = std::string_view(pLine).substr(std::min(endOfArgs(), pLine.size()));
  if (const std::size_t as = inStrOutsideQuotes(rest, kAs); as != 0) {
    return std::string(trimLeading(rest.substr(as - 1 + kAs.size())));
  }
  return pType == "Function" || pType == "Property Get" ? "Variant" : "";
}

}  // namespace tamrikon
