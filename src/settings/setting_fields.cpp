#include "settings/setting_fields.h"

namespace tamrikon {

std::vector<SettingField> settingFields(ProjectSettings& settings) {
  std::vector<SettingField> fields = {
      {"addSee", &settings.addSee},         {"addParam", &settings.addParam},
      {"addReturn", &settings.addReturn},   {"addDescription", &settings.addDescription},
      {"addRem", &settings.addRem},         {"addSame", &settings.addSame},
      {"addAuthor", &settings.addAuthor},   {"addRevision", &settings.addRevision},
      {"addVersion", &settings.addVersion}, {"addIncludeSource", &settings.addIncludeSource},
  };
  const auto number = [](std::size_t tag) { return std::to_string(tag + 1); };
  for (std::size_t tag = 0; tag < ProjectSettings::kUserTags; ++tag) {
    fields.push_back({"addUser" + number(tag), &settings.addUser[tag]});
  }
  for (std::size_t tag = 0; tag < ProjectSettings::kUserTags; ++tag) {
    fields.push_back({"user" + number(tag) + "Name", &settings.userName[tag]});
  }
  for (std::size_t tag = 0; tag < ProjectSettings::kUserTags; ++tag) {
    fields.push_back({"user" + number(tag) + "Default", &settings.userDefault[tag]});
  }
  const SettingField rest[] = {
      {"comNonCommented", &settings.comNonCommented},
      {"comPublic", &settings.comPublic},
      {"comPrivate", &settings.comPrivate},
      {"comFriend", &settings.comFriend},
      {"comEvent", &settings.comEvent},
      {"comMethod", &settings.comMethod},
      {"comStdModule", &settings.comStdModule},
      {"comObject", &settings.comObject},
      {"comForm", &settings.comForm},
      {"comProperty", &settings.comProperty},
      {"comVariable", &settings.comVariable},
      {"comConstant", &settings.comConstant},
      {"comContextID", &settings.comContextID},
      {"comWriteDescription", &settings.comWriteDescription},
      {"indentMode", &settings.indentMode},
      {"addingMode", &settings.addingMode},
      {"insertSourceGlobal", &settings.insertSourceGlobal},
      {"autoUpdateParams", &settings.autoUpdateParams},
      {"wordWrapLength", &settings.wordWrapLength},
      {"autoInsertEOL", &settings.autoInsertEOL},
      {"titlePageText", &settings.titlePageText},
      {"outputPath", &settings.outputPath},
      {"templateFolder", &settings.templateFolder},
      {"templatePath", &settings.templatePath},
  };
  fields.insert(fields.end(), std::begin(rest), std::end(rest));
  return fields;
}

}  // namespace tamrikon
