#include "settings/setting_faults.h"

#include <vector>

#include "base/closest_word.h"
#include "settings/setting_fields.h"

namespace tamrikon {

std::string faultOfKey(std::string_view key) {
  ProjectSettings settings;
  std::vector<std::string> keys = {"comModules"};
  for (const SettingField& field : settingFields(settings)) keys.push_back(field.key);
  return "there is no setting '" + std::string(key) + "'" + didYouMean(key, keys);
}

std::string faultOfNumber(std::string_view value) {
  return "'" + std::string(value) + "' is no number from -32768 to 32767";
}

}  // namespace tamrikon
