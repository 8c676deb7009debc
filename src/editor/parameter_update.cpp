#include "editor/parameter_update.h"

#include <algorithm>
#include <set>
#include <utility>

#include "base/case_folding.h"
#include "base/text.h"
#include "editor/setting_tables.h"

namespace tamrikon {
namespace {

std::string textOf(const FieldList& parameters, const std::string& name) {
  for (const std::string& item : parameters) {
    if (itemName(item) == name) return parameterText(item);
  }
  return {};
}

/// What stands behind the header of a text; the whole text if it has none.
std::string_view behindHeader(std::string_view current, bool isReturn) {
  constexpr std::size_t kPresence = std::string_view("Required. ").size();
  const bool isOptional = !isReturn && current.starts_with("Optional. ");
  if (!isReturn && !isOptional && !current.starts_with("Required. ")) return current;
  const std::string_view rest = isReturn ? current : current.substr(kPresence);
  const std::size_t stop = rest.find('.');
  if (stop == std::string_view::npos || !isTypeWord(trim(rest.substr(0, stop)))) return current;
  const std::string_view behind = rest.substr(stop + 1);
  if (isOptional && behind.starts_with(" Default value is ")) {
    const std::size_t second = behind.find('.');
    if (second != std::string_view::npos) return behind.substr(second + 1);
  }
  return behind;
}

}  // namespace

CommentFields updateParameters(CommentFields& fields, const GeneratedFields& generated) {
  CommentFields gone;
  if (generated.returns.empty()) {
    gone.returns = behindHeader(fields.returns, true);
    fields.returns.clear();
  } else {
    fields.returns = mergeHeader(fields.returns, generated.returns, true);
  }
  FieldList updated;
  std::set<std::string> kept;
  for (const std::string& item : generated.parameters) {
    const std::string name = itemName(item);
    const std::string text = textOf(fields.parameters, name);
    updated.push_back(parameterItem(name, mergeHeader(text, parameterText(item), false)));
    kept.insert(name);
  }
  for (const std::string& item : fields.parameters) {
    if (kept.erase(itemName(item)) > 0) continue;  // a second one of the name goes
    const std::string text = parameterText(item);
    const std::string_view own = behindHeader(text, false);
    if (!trim(own).empty()) gone.parameters.push_back(parameterItem(itemName(item), own));
  }
  fields.parameters = std::move(updated);
  gone.settingsLists = fields.settingsLists;
  keepSettingsOf(fields.settingsLists, fields.parameters);
  for (FieldList& table : gone.settingsLists) {
    if (!table.empty() && findSettings(fields.settingsLists, itemName(table.front())))
      table.clear();
  }
  return gone;
}

std::string mergeHeader(std::string_view current, std::string_view generated, bool isReturn) {
  return std::string(generated).append(behindHeader(current, isReturn));
}

bool isTypeWord(std::string_view word) {
  if (word == "ParamArray, comma-delimited list of Variant values") return true;
  constexpr std::string_view kObject = " object";
  if (word.ends_with(kObject)) word.remove_suffix(kObject.size());
  const std::string lower = lowered(word);
  const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
  const auto isWordCharacter = [&](char c) {
    return isLetter(c) || (c >= '0' && c <= '9') || c == '_';
  };
  return !lower.empty() && lower.size() <= 255 && isLetter(lower.front()) &&
         std::all_of(lower.begin(), lower.end(), isWordCharacter);
}

}  // namespace tamrikon
