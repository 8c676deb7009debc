#include "editor/field_text.h"

#include <algorithm>

#include "base/text.h"

namespace tamrikon {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Returns what stands before the first line end (all, if there is none) and leaves in `text` what
/// stands behind it.
std::string_view cutLine(std::string_view& text) {
  const std::size_t end = text.find(kLineEnd);
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + kLineEnd.size());
  return line;
}

}  // namespace

std::string convertFieldText(std::string_view text, const ProjectSettings& settings) {
  if (settings.autoInsertEOL == 0) return replaceAll(text, "\r", kLineEnd);
  std::string result = replaceAll(text, "$EOL$\r", "\n");
  result = replaceAll(result, "$EOL$", "\n");
  std::replace(result.begin(), result.end(), '\r', ' ');
  return replaceAll(result, "\n", kLineEnd);
}

FieldList convertListItems(const FieldList& list, int keep, const ProjectSettings& settings) {
  FieldList result;
  for (std::string item : list) {
    if (item.ends_with('\r')) item.pop_back();
    if (settings.autoInsertEOL == 1) {
      std::size_t at = item.find('\r');
      for (int n = 0; n < keep && at != std::string::npos; ++n) {
        item[at] = '\n';
        at = item.find('\r', at);
      }
    }
    result.push_back(convertFieldText(item, settings));
  }
  return result;
}

FieldList formatLinkList(const FieldList& links) {
  FieldList result;
  for (const std::string_view entry : links) {
    std::string_view label = entry;
    const std::string_view link = cutField(label, '\r');
    result.push_back(linkItem(link, label));
  }
  return result;
}

std::string linkItem(std::string_view link, std::string_view label) {
  std::string item(link);
  if (!label.empty()) item.append(" [").append(label).append("]");
  return item;
}

LinkAndLabel splitLinkItem(std::string_view item) {
  const std::size_t bracket = item.find('[');
  LinkAndLabel result{std::string(trim(item.substr(0, bracket))), ""};
  if (bracket == std::string_view::npos) return result;
  std::string_view label = item.substr(bracket + 1);
  const auto isContinuationByte = [](char c) { return (c & '\xC0') == '\x80'; };
  while (!label.empty() && isContinuationByte(label.back())) label.remove_suffix(1);
  if (!label.empty()) label.remove_suffix(1);
  result.label = label;
  return result;
}

std::string itemName(std::string_view item) {
  return std::string(cutLine(item));
}

std::string parameterText(std::string_view item) {
  cutLine(item);
  return std::string(item);
}

std::string parameterItem(std::string_view name, std::string_view text) {
  return std::string(name).append(kLineEnd).append(text);
}

SettingRow settingRow(std::string_view item) {
  SettingRow row;
  for (std::size_t i = 0; i + 1 < row.size(); ++i) row[i] = cutLine(item);
  row.back() = item;
  return row;
}

std::string settingItem(const SettingRow& row) {
  return join({row.begin(), row.end()}, kLineEnd);
}

}  // namespace tamrikon
