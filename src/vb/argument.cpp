#include "vb/argument.h"

#include <optional>

#include "base/text.h"
#include "vb/vb_text.h"

namespace tamrikon {
namespace {

constexpr std::string_view kAs = " As ";
constexpr std::string_view kVariant = "Variant";

/// What stands behind the first " As ".
std::optional<std::string_view> behindAs(std::string_view text) {
  const std::size_t pos = inStrOutsideQuotes(text, kAs);
  if (pos == 0) return std::nullopt;
  return text.substr(pos - 1 + kAs.size());
}

std::string_view upToBlank(std::string_view text) {
  const std::size_t pos = inStrOutsideQuotes(text, " ");
  return pos == 0 ? text : text.substr(0, pos - 1);
}

/// The type that a type-suffix character stands for; empty for every other character.
std::string_view typeOfSuffix(char suffix) {
  switch (suffix) {
    case '%': return "Integer";
    case '&': return "Long";
    case '$': return "String";
    case '@': return "Currency";
    case '#': return "Double";
    case '!': return "Single";
    default: return {};
  }
}

bool cutWord(std::string_view& text, std::string_view word) {
  if (!text.starts_with(word)) return false;
  text.remove_prefix(word.size());
  return true;
}

}  // namespace

void argument::parse(std::string_view line) {
  const auto type = behindAs(line);
  aType = type ? upToBlank(*type) : kVariant;
  readAllButType(line);
}

void argument::parseVariable(std::string_view line) {
  const auto type = behindAs(line);
  aType = type ? trim(*type) : kVariant;
  readAllButType(line);
}

void argument::readAllButType(std::string_view line) {
  aOptional = aByVal = pArray = false;
  // Keywords count in front only: a name such as InByVal is no keyword.
  for (bool again = true; again;) {
    line = trimLeading(line);
    again = true;
    if (cutWord(line, "Optional ")) {
      aOptional = true;
    } else if (cutWord(line, "ByVal ")) {
      aByVal = true;
    } else if (cutWord(line, "ParamArray ")) {
      pArray = true;
    } else {
      again = cutWord(line, "ByRef ");
    }
  }
  if (pArray) aOptional = true;

  aName = upToBlank(line);
  if (const std::string_view type = aName.empty() ? "" : typeOfSuffix(aName.back());
      !type.empty()) {
    aName.pop_back();
    if (aType == kVariant) aType = type;
  }

  const std::size_t equals = inStrOutsideQuotes(line, "= ");
  aDefault = equals == 0 ? std::string_view() : trim(line.substr(equals + 1));
}

}  // namespace tamrikon
