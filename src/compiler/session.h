// What lives as long as the program is connected to an IDE or a project, handed down by reference.
// Two sessions can live side by side.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "ide/ide.h"
#include "platform/process.h"
#include "platform/text_files.h"
#include "settings/project_settings.h"
#include "settings/settings_file.h"

namespace tamrikon {

class store;

class Session {
 public:
  /// All of them must outlive this object. `dataFolder` is the folder of the program's data, with
  /// no separator at its end.
  Session(FileErrorReporter& errorReporter, FileSystem& fileSystem,
          ProcessServices& processServices, std::string dataFolder);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  FileErrorReporter& fileErrors;
  ProcessServices& processes;
  const std::string addInFolder;

  TextFiles files;
  ProjectSettings settings;
  SettingsFile settingsFile;

  /// Where the code page of a project comes from; empty: that of `files` stays.
  std::function<const CodePage&(const VBProject&)> codePageOf;

  /// Makes code page and settings those of the IDE's active project.
  void loadProjectSettings(VBE& ide);

  /// What the last compile worked on, or null: its macros can still answer.
  std::unique_ptr<store> currentStore;
};

}  // namespace tamrikon
