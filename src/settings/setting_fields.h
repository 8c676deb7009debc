// The one table of settings: which key of the settings file stands for which field.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "settings/project_settings.h"

namespace tamrikon {

struct SettingField {
  std::string key;
  std::variant<bool*, std::int16_t*, std::string*> value;  // points into the settings
};

/// All fields of `settings` in the order of the settings file, but for comModules, whose lines
/// stand last.
std::vector<SettingField> settingFields(ProjectSettings& settings);

}  // namespace tamrikon
