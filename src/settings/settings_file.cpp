#include "settings/settings_file.h"

#include <algorithm>

#include "base/case_folding.h"
#include "base/paths.h"
#include "base/text.h"
#include "platform/text_decoding.h"
#include "settings/setting_faults.h"
#include "settings/setting_fields.h"
#include "settings/settings_text.h"

namespace tamrikon {
namespace {

constexpr std::string_view kModulesKey = "comModules";
constexpr std::string_view kLeftOutMark = "#left out: ";

std::string fieldText(const SettingField& field) {
  if (const auto* flag = std::get_if<bool*>(&field.value)) {
    return std::string(settingFromBool(**flag));
  }
  if (const auto* number = std::get_if<std::int16_t*>(&field.value)) {
    return std::to_string(**number);
  }
  const std::string& text = **std::get_if<std::string*>(&field.value);
  if (field.key == "titlePageText") return escapeEOL(text);
  return text;
}

/// What leads from the folder to the template: its name, also behind folders within that one.
std::string templateText(const ProjectSettings& settings) {
  const std::string folder = joinPath(settings.templateFolder, "");
  const std::string& path = settings.templatePath;
  return path.starts_with(folder) ? path.substr(folder.size()) : std::string(lastName(path));
}

}  // namespace

KeyedList<CodeModule*> SettingsFile::codeModules(VBE& ide) {
  KeyedList<CodeModule*> modules;
  const VBComponents& components = ide.ActiveVBProject().VBComponents();
  for (int number = 1; number <= components.Count(); ++number) {
    const VBComponent& component = components.Item(number);
    if (!hasCode(component.Type())) continue;
    CodeModule* module = component.CodeModule();
    if (module != nullptr) modules.add(module, module->Name());
  }
  return modules;
}

void SettingsFile::setTemplateDefaults() {
  settings_.templateFolder = joinPath(addInFolder_, "Templates");
  settings_.templatePath = joinPath(settings_.templateFolder, "chm.tmkt");
}

void SettingsFile::setDefaultSettings(VBE& ide) {
  settings_ = ProjectSettings();
  settings_.outputPath = defaultOutputFolder(ide);
  setTemplateDefaults();
  settings_.comModules = codeModules(ide);
  isFromFile_ = false;
  leftOut_.clear();
}

void SettingsFile::loadProjectSettings(VBE& ide) {
  readProjectSettings(ide);
  createOutputFolder();
}

void SettingsFile::createOutputFolder() {
  // A folder that exists fails as well, and where it can't be made, writing into it will tell.
  files_.files().createFolder(settings_.outputPath);
}

bool SettingsFile::readProjectSettings(VBE& ide) {
  unusable_.clear();
  setDefaultSettings(ide);
  if (readSettingsFile(ide, true) == 0) return true;
  const std::string fault = std::move(fault_);
  fault_.clear();
  setDefaultSettings(ide);
  tryStep([&] { unusable_ = settingsFilePath(ide); });
  if (files_.files().isFile(unusable_)) fault_ = unusable_ + fault;
  return false;
}

int SettingsFile::readSettingsFile(VBE& ide, bool silent) {
  const KeyedList<CodeModule*> modules = codeModules(ide);
  settings_.comModules = {};
  leftOut_.clear();
  fault_ = " can't be read";
  std::string path;
  if (!tryStep([&] { path = settingsFilePath(ide); })) return 3;
  std::string text;
  const int result = files_.readTextFile(path, silent, text);
  if (result != 0) return result;
  const std::vector<std::string_view> lines = splitLines(text);
  if (lines.empty()) {
    fault_ = " is empty";
    const FileErrorAnswer answer = files_.ask(path, "reading", FileError::pastEndOfFile, silent);
    return answer == FileErrorAnswer::giveUp ? 2 : 3;
  }
  if (lines.front() != kSettingsHeader) {
    fault_ = " isn't a settings file: line 1 isn't '" + std::string(kSettingsHeader) + "'";
    return 1;
  }
  for (std::size_t n = 1; n < lines.size(); ++n) {
    if (lines[n].starts_with(kLeftOutMark)) {
      const std::string_view name = trim(lines[n].substr(kLeftOutMark.size()));
      if (modules.contains(name)) leftOut_.emplace_back(name);
      continue;
    }
    const int outcome = applyLine(lines[n], path, modules, silent);
    if (outcome == 0) continue;
    fault_ = ", line " + std::to_string(n + 1) + ": " + fault_;
    return outcome;
  }
  fault_.clear();
  isFromFile_ = true;
  return 0;
}

int SettingsFile::applyLine(std::string_view line, const std::string& path,
                            const KeyedList<CodeModule*>& modules, bool silent) {
  const std::size_t sign = line.find('=');
  if (sign == std::string_view::npos) return 0;
  const std::string_view key = trim(line.substr(0, sign));
  const std::string_view value = trim(line.substr(sign + 1));
  switch (apply(key, value, modules)) {
    case SettingOutcome::applied: return 0;
    case SettingOutcome::unknownKey: fault_ = faultOfKey(key); return 1;
    case SettingOutcome::badNumber: fault_ = std::string(key) + ": " + faultOfNumber(value); break;
  }
  for (;;) {
    switch (files_.ask(path, "reading", FileError::typeMismatch, silent)) {
      case FileErrorAnswer::repeat: break;
      case FileErrorAnswer::goOn: return 0;
      case FileErrorAnswer::giveUp: return 2;
      case FileErrorAnswer::fail: return 3;
    }
  }
}

SettingOutcome SettingsFile::apply(std::string_view key, std::string_view value,
                                   const KeyedList<CodeModule*>& modules) {
  if (key == kModulesKey) {
    CodeModule* const* module = modules.find(value);
    if (module != nullptr) settings_.comModules.add(*module, value);
    return SettingOutcome::applied;
  }
  const std::vector<SettingField> fields = settingFields(settings_);
  const auto field = std::find_if(fields.begin(), fields.end(),
                                  [&](const SettingField& f) { return f.key == key; });
  if (field == fields.end()) return SettingOutcome::unknownKey;
  if (const auto* flag = std::get_if<bool*>(&field->value)) {
    **flag = settingToBool(value);
  } else if (const auto* number = std::get_if<std::int16_t*>(&field->value)) {
    const auto parsed = settingToInt(value);
    if (!parsed) return SettingOutcome::badNumber;
    **number = *parsed;
  } else {
    std::string& text = **std::get_if<std::string*>(&field->value);
    if (key == "titlePageText") {
      text = unescapeEOL(value);
    } else if (key == "templateFolder") {
      while (endsInSeparator(value)) value.remove_suffix(1);
      text = value;
    } else if (key == "templatePath") {
      setTemplatePath(value);
    } else {
      text = value;
      // A tag needs a name: an empty one gives the default, which is the key's first five letters.
      if (value.empty() && key.ends_with("Name")) text = key.substr(0, 5);
    }
  }
  return SettingOutcome::applied;
}

void SettingsFile::setTemplatePath(std::string_view name) {
  settings_.templatePath = joinPath(settings_.templateFolder, name);
  if (!files_.files().isFile(settings_.templatePath)) setTemplateDefaults();
}

bool SettingsFile::findsTemplate() const {
  return files_.files().isFile(joinPath(settings_.templateFolder, templateText(settings_)));
}

std::string SettingsFile::settingsLines() const {
  std::string text;
  const auto addLine = [&](std::string_view key, std::string_view value) {
    if (!text.empty()) text += '\r';
    text.append(key).append(" = ").append(value);
  };
  for (const SettingField& field : settingFields(settings_)) {
    addLine(field.key, field.key == "templatePath" ? templateText(settings_) : fieldText(field));
  }
  for (const CodeModule* module : settings_.comModules) addLine(kModulesKey, module->Name());
  for (const std::string& name : leftOut_) {
    if (!settings_.comModules.contains(name)) text.append("\r").append(kLeftOutMark).append(name);
  }
  return text;
}

bool SettingsFile::isLeftOut(std::string_view module) const {
  return std::any_of(leftOut_.begin(), leftOut_.end(),
                     [&](const std::string& name) { return equalIgnoringCase(name, module); });
}

std::vector<CodeModule*> SettingsFile::unlistedModules(VBE& ide) const {
  return isFromFile_ ? otherModules(ide) : std::vector<CodeModule*>();
}

std::vector<CodeModule*> SettingsFile::otherModules(VBE& ide) const {
  std::vector<CodeModule*> others;
  for (CodeModule* module : codeModules(ide)) {
    const std::string name = module->Name();
    if (!settings_.comModules.contains(name) && !isLeftOut(name)) others.push_back(module);
  }
  return others;
}

void SettingsFile::addOtherModules(VBE& ide) {
  for (CodeModule* module : otherModules(ide)) settings_.comModules.add(module, module->Name());
}

void SettingsFile::leaveOutOtherModules(VBE& ide) {
  for (const CodeModule* module : otherModules(ide)) leftOut_.push_back(module->Name());
}

std::optional<Diagnostic> SettingsFile::faultOfFile() const {
  if (fault_.empty()) return std::nullopt;
  return Diagnostic{Diagnostic::About::project, Severity::warning, "settings-file",
                    fault_ + "; the defaults hold"};
}

std::vector<Diagnostic> SettingsFile::notes(VBE& ide) const {
  if (const auto fault = faultOfFile()) return {*fault};
  std::vector<Diagnostic> notes;
  for (const CodeModule* module : unlistedModules(ide)) {
    notes.push_back({Diagnostic::About::project, Severity::warning, "unlisted-module",
                     "module " + module->Name() + " isn't documented, as " + settingsFilePath(ide) +
                         " doesn't list it"});
    notes.back().place.module = module->Name();
  }
  return notes;
}

int SettingsFile::writeSettingsFile(VBE& ide) {
  std::string path;
  if (!tryStep([&] { path = settingsFilePath(ide); })) return 0;
  keptAs_.clear();
  if (path == unusable_ && files_.files().isFile(path)) {
    const int result = keepUnusable(path);
    if (result != 0) return result;
  }
  unusable_.clear();
  return files_.replaceTextFile(path, std::string(kSettingsHeader) + "\r" + settingsLines(), false);
}

int SettingsFile::keepUnusable(const std::string& path) {
  const std::string backup = path + ".bak";
  std::string bytes;
  for (;;) {
    FileError error = files_.files().read(path, bytes);
    if (error == FileError::none) error = files_.files().replaceAtomically(backup, bytes);
    if (error == FileError::none) break;
    switch (files_.ask(backup, "saving", error, false)) {
      case FileErrorAnswer::repeat: continue;
      case FileErrorAnswer::goOn: return 0;
      case FileErrorAnswer::giveUp: return 1;
      case FileErrorAnswer::fail: return 2;
    }
  }
  keptAs_ = backup;
  return 0;
}

std::string SettingsFile::settingsFilePath(VBE& ide) {
  const std::string name = ide.ActiveVBProject().FileName();
  for (std::size_t at = name.size(); at-- > 0;) {
    if (startsWithIgnoringCase(std::string_view(name).substr(at), ".vbp")) {
      return name.substr(0, at + 1) + "tamrik";
    }
  }
  return name + ".tamrik";
}

std::string SettingsFile::defaultOutputFolder(VBE& ide) const {
  std::string name;
  if (!tryStep([&] { name = ide.ActiveVBProject().FileName(); })) return addInFolder_;
  const std::size_t folderLength = name.size() - lastName(name).size();
  return folderLength == 0 ? name : name.substr(0, folderLength) + "Tamrik";
}

}  // namespace tamrikon
