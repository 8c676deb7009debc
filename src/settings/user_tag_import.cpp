#include "settings/user_tag_import.h"

#include <algorithm>
#include <string_view>
#include <variant>
#include <vector>

#include "base/text.h"
#include "platform/text_decoding.h"
#include "settings/setting_fields.h"
#include "settings/settings_text.h"

namespace tamrikon {
namespace {

std::vector<SettingField> userTagFields(ProjectSettings& settings) {
  std::vector<SettingField> fields = settingFields(settings);
  fields.erase(std::remove_if(fields.begin(), fields.end(),
                              [](const SettingField& field) {
                                return !field.key.starts_with("addUser") &&
                                       !field.key.starts_with("user");
                              }),
               fields.end());
  return fields;
}

void apply(const SettingField& field, std::string_view value) {
  if (const auto* flag = std::get_if<bool*>(&field.value)) {
    **flag = settingToBool(value);
    return;
  }
  std::string& text = **std::get_if<std::string*>(&field.value);
  text = value;
  // A tag needs a name: an empty one gives the default, which is the key's first five letters.
  if (value.empty() && field.key.ends_with("Name")) text = field.key.substr(0, 5);
}

}  // namespace

bool readUserTags(std::string_view text, ProjectSettings& settings) {
  const std::vector<std::string_view> lines = splitLines(text);
  if (lines.empty() || lines.front() != kSettingsHeader) return false;
  const std::vector<SettingField> fields = userTagFields(settings);
  for (std::size_t n = 1; n < lines.size(); ++n) {
    const std::size_t sign = lines[n].find('=');
    if (sign == std::string_view::npos) continue;
    const std::string_view key = trim(lines[n].substr(0, sign));
    const auto field = std::find_if(fields.begin(), fields.end(),
                                    [&](const SettingField& f) { return f.key == key; });
    if (field != fields.end()) apply(*field, trim(lines[n].substr(sign + 1)));
  }
  return true;
}

int importUserTags(TextFiles& files, const std::string& path, ProjectSettings& settings) {
  std::string text;
  for (;;) {
    const int result = files.readTextFile(path, false, text);
    if (result != 0) return result;
    if (!text.empty()) return readUserTags(text, settings) ? 0 : 1;
    const FileErrorAnswer answer = files.ask(path, "reading", FileError::pastEndOfFile, false);
    if (answer == FileErrorAnswer::goOn) return 1;
    if (answer == FileErrorAnswer::giveUp) return 2;
    if (answer == FileErrorAnswer::fail) return 3;
  }
}

}  // namespace tamrikon
