#include "cli/setting_overrides.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/case_folding.h"
#include "base/closest_word.h"
#include "base/keyed_list.h"
#include "base/paths.h"
#include "base/text.h"
#include "platform/folder_listing.h"
#include "settings/setting_faults.h"
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

bool hasLineEnd(std::string_view text) {
  return text.find_first_of("\r\n") != std::string_view::npos;
}

/// What a word for a switch means; nothing for any other word.
std::optional<bool> readSwitch(std::string_view word) {
  for (const char* on : {"1", "yes", "true"}) {
    if (equalIgnoringCase(word, on)) return true;
  }
  for (const char* off : {"0", "no", "false"}) {
    if (equalIgnoringCase(word, off)) return false;
  }
  return std::nullopt;
}

/// Every line end as CR LF.
std::string withCrLf(std::string_view text) {
  std::string lines = replaceAll(text, "\r\n", "\n");
  std::replace(lines.begin(), lines.end(), '\r', '\n');
  return replaceAll(lines, "\n", "\r\n");
}

std::optional<SettingField> fieldOf(ProjectSettings& settings, std::string_view key) {
  for (SettingField& field : settingFields(settings)) {
    if (field.key == key) return std::move(field);
  }
  return std::nullopt;
}

/// What is wrong with the value of a setting; empty if nothing is.
std::string faultOfValue(const SettingField& field, std::string_view value) {
  const bool isSwitch = std::holds_alternative<bool*>(field.value);
  if (isSwitch && !readSwitch(value)) {
    return "'" + std::string(value) + "' is none of 1, yes, true, 0, no and false";
  }
  const bool isNumber = std::holds_alternative<std::int16_t*>(field.value);
  if (isNumber && !settingToInt(value)) return faultOfNumber(value);
  return {};
}

std::string chooseTemplate(Session& session, std::string_view argument, std::string_view value) {
  ProjectSettings& settings = session.settings;
  FileSystem& files = session.files.files();
  const std::string& folder = settings.templateFolder;
  std::string path = joinPath(folder, value);
  if (!files.isFile(path) && !hasExtension(path)) path += ".tmkt";
  if (!files.isFile(path)) {
    return "'" + std::string(argument) + "': " + faultOfMissingTemplate(files, path);
  }
  settings.templatePath = path;
  return {};
}

}  // namespace

std::string faultOfMissingTemplate(FileSystem& files, const std::string& path) {
  return "there is no template " + path +
         didYouMean(lastName(path), filesIn(files, std::string(folderOf(path))));
}

std::string faultOfSetting(const std::string& argument) {
  const auto [key, value] = divided(argument);
  const std::string start = "'" + argument + "'";
  if (argument.find('=') == std::string::npos) {
    return start + " is no setting: KEY=VALUE is needed";
  }
  if (key == "templateFolder" && value.empty()) return start + ": a folder is needed";
  if (hasLineEnd(key) || (hasLineEnd(value) && key != "titlePageText")) {
    return start + ": only titlePageText can have several lines";
  }
  if (key == kModulesKey) return {};
  ProjectSettings scratch;
  const std::optional<SettingField> field = fieldOf(scratch, key);
  const std::string fault = field ? faultOfValue(*field, value) : faultOfKey(key);
  return fault.empty() ? fault : start + ": " + fault;
}

bool setsKey(const std::vector<std::string>& arguments, std::string_view key) {
  return std::any_of(arguments.begin(), arguments.end(),
                     [&](const std::string& argument) { return divided(argument).key == key; });
}

std::string applySettings(Session& session, VBE& ide, const std::vector<std::string>& arguments) {
  const KeyedList<CodeModule*> modules = SettingsFile::codeModules(ide);
  SettingsFile& file = session.settingsFile;
  const std::string* templateArgument = nullptr;
  for (const std::string& argument : arguments) {
    const auto [key, value] = divided(argument);
    const std::optional<SettingField> field = fieldOf(session.settings, key);
    if (key == kModulesKey) {
      session.settings.comModules = {};
      for (const std::string_view name : split(value, ',')) file.apply(key, trim(name), modules);
    } else if (key == "outputPath" && value.empty()) {
      session.settings.outputPath = file.defaultOutputFolder(ide);
    } else if ((key == "outputPath" || key == "templateFolder") && !isAbsolutePath(value)) {
      file.apply(key, session.files.files().absolute(std::string(value)), modules);
    } else if (key == "templatePath") {
      templateArgument = &argument;
    } else if (key == "titlePageText") {
      file.apply(key, withCrLf(value), modules);
    } else if (field && std::holds_alternative<bool*>(field->value)) {
      file.apply(key, settingFromBool(*readSwitch(value)), modules);
    } else {
      file.apply(key, value, modules);
    }
  }
  if (templateArgument == nullptr) return {};
  return chooseTemplate(session, *templateArgument, divided(*templateArgument).value);
}

std::vector<Diagnostic> missingModules(const std::vector<std::string>& arguments,
                                       const std::vector<const VBProject*>& projects) {
  KeyedList<std::string> known;
  for (const VBProject* project : projects) {
    for (int number = 1; number <= project->VBComponents().Count(); ++number) {
      const CodeModule* module = project->VBComponents().Item(number).CodeModule();
      if (module != nullptr) known.add(module->Name(), module->Name());
    }
  }
  std::vector<Diagnostic> warnings;
  for (const std::string& argument : arguments) {
    const auto [key, value] = divided(argument);
    if (key != kModulesKey) continue;
    for (const std::string_view name : split(value, ',')) {
      if (trim(name).empty() || known.contains(trim(name))) continue;
      warnings.push_back({Diagnostic::About::project, Severity::warning, "missing-module",
                          "comModules: there is no module " + std::string(trim(name))});
    }
  }
  return warnings;
}

}  // namespace tamrikon
