// The settings file beside the project, and the record that it fills.
//
// The file is plain text: the header line "#Tamrikon Project Settings#", then a line "key = value"
// for each key in a fixed order, then a line for each selected module. It is taken whole or not at
// all: one unknown key or bad number, and every setting has its default.
//
// Lines without "=" say nothing to its readers, but for one form: "#left out: NAME" notes that a
// module isn't among the selected ones on purpose, so that nobody is told of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/diagnostic.h"
#include "platform/text_files.h"
#include "settings/project_settings.h"

namespace tamrikon {

enum class SettingOutcome { applied, unknownKey, badNumber };

class SettingsFile {
 public:
  /// All of them must outlive this object. `addInFolder` is the folder of the program's data.
  SettingsFile(ProjectSettings& settings, const std::string& addInFolder, TextFiles& files)
      : settings_(settings), addInFolder_(addInFolder), files_(files) {}

  /// Fills the record for the active project and tries to create its output folder.
  void loadProjectSettings(VBE& ide);

  /// The same without the folder: the defaults, then the file if it can be taken. Whether it was.
  bool readProjectSettings(VBE& ide);

  /// Tries to create the folder `outputPath`; its parent must be there.
  void createOutputFolder();

  void setDefaultSettings(VBE& ide);

  /// 0 for success, 1 if the file isn't a settings file, 2 if the user gave up at the file error
  /// dialog, 3 for any other failure.
  int readSettingsFile(VBE& ide, bool silent);

  /// Writes the file whole, a failure leaving the old one; what writeTextFile returns. A project
  /// that was never saved has no place for it, and nothing is written. The text of a file that
  /// couldn't be taken when the settings were read is kept first, under the same name with ".bak"
  /// behind it.
  int writeSettingsFile(VBE& ide);

  /// The file that the last write kept such a text in; empty if it kept none.
  const std::string& keptAs() const { return keptAs_; }

  /// Why the settings are the defaults though there is a file, with its path and the line; nothing
  /// if the file was taken or there is none.
  std::optional<Diagnostic> faultOfFile() const;

  /// The modules of the project that the file doesn't select, in the order of the components,
  /// without those that it says are left out on purpose; none if there is no file.
  std::vector<CodeModule*> unlistedModules(VBE& ide) const;

  /// Select the modules that are neither selected nor left out on purpose, or note that they are
  /// left out.
  void addOtherModules(VBE& ide);
  void leaveOutOtherModules(VBE& ide);

  /// What is wrong with the settings that were read: the fault, or each unlisted module.
  std::vector<Diagnostic> notes(VBE& ide) const;

  /// Sets one field from the text of a settings line. `modules` are the modules that a comModules
  /// line may name; other names are passed over.
  SettingOutcome apply(std::string_view key, std::string_view value,
                       const KeyedList<CodeModule*>& modules);

  /// The code modules of the active project, by name, in the order of its components.
  static KeyedList<CodeModule*> codeModules(VBE& ide);

  /// Whether the next run that reads what would be written now finds the template.
  bool findsTemplate() const;

  /// The lines below the header, divided by CR.
  std::string settingsLines() const;

  /// These fail for a project that was never saved.
  static std::string settingsFilePath(VBE& ide);
  std::string defaultOutputFolder(VBE& ide) const;

 private:
  std::vector<CodeModule*> otherModules(VBE& ide) const;
  bool isLeftOut(std::string_view module) const;
  int keepUnusable(const std::string& path);
  int applyLine(std::string_view line, const std::string& path,
                const KeyedList<CodeModule*>& modules, bool silent);
  void setTemplateDefaults();
  void setTemplatePath(std::string_view name);

  ProjectSettings& settings_;
  const std::string& addInFolder_;
  TextFiles& files_;
  std::string unusable_;  // the file that was there and couldn't be taken
  std::string fault_;
  bool isFromFile_ = false;
  std::vector<std::string> leftOut_;  // modules of the project
  std::string keptAs_;
};

}  // namespace tamrikon
