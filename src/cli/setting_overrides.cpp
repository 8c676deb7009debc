#include "cli/setting_overrides.h"

#include <algorithm>

#include "base/paths.h"
#include "base/text.h"
#include "settings/setting_fields.h"
#include "settings/settings_text.h"

namespace tamrikon {
namespace {

constexpr std::string_view kModulesKey = "comModules";

struct KeyValue {
  std::string_view key;
  std::string_view value;
};

KeyValue divided(std::string_view argument) {
  const std::size_t sign = argument.find('=');
  if (sign == std::string_view::npos) return {trim(argument), {}};
  return {trim(argument.substr(0, sign)), trim(argument.substr(sign + 1))};
}

}  // namespace

std::string faultOfSetting(const std::string& argument) {
  const auto [key, value] = divided(argument);
  if (argument.find('=') == std::string::npos) {
    return "'" + argument + "' is no setting: KEY=VALUE is needed";
  }
  if (key == kModulesKey) return {};
  ProjectSettings scratch;
  for (const SettingField& field : settingFields(scratch)) {
    if (field.key != key) continue;
    const bool isNumber = std::holds_alternative<std::int16_t*>(field.value);
    if (!isNumber || settingToInt(value)) return {};
    return "'" + argument + "': '" + std::string(value) + "' is no number from -32768 to 32767";
  }
  return "'" + argument + "': there is no setting '" + std::string(key) + "'";
}

void applySettings(Session& session, VBE& ide, const std::vector<std::string>& arguments) {
  const KeyedList<CodeModule*> modules = SettingsFile::codeModules(ide);
  SettingsFile& file = session.settingsFile;
  for (const std::string& argument : arguments) {
    const auto [key, value] = divided(argument);
    if (key == kModulesKey) {
      session.settings.comModules = {};
      for (const std::string_view name : split(value, ',')) file.apply(key, trim(name), modules);
    } else if ((key == "outputPath" || key == "templateFolder") && !isAbsolutePath(value)) {
      file.apply(key, session.files.files().absolute(std::string(value)), modules);
    } else {
      file.apply(key, value, modules);
    }
  }
}

}  // namespace tamrikon
