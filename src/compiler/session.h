// Everything that lives as long as the program is connected to an IDE or a project, in one object
// that is handed down by reference. Two sessions can live side by side.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "compiler/compile_times.h"
#include "compiler/file_error_dialog.h"
#include "compiler/group_folders.h"
#include "compiler/progress_dlg.h"
#include "compiler/progress_log.h"
#include "compiler/written_files.h"
#include "platform/process.h"
#include "platform/text_files.h"
#include "settings/project_settings.h"
#include "settings/settings_file.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

class store;

class Session {
 public:
  /// All of them must outlive this object. `dataFolder` is the folder of the program's data, with
  /// no separator at its end.
  Session(Toolkit& dialogToolkit, FileSystem& fileSystem, ProcessServices& processServices,
          std::string dataFolder);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  Toolkit& toolkit;
  ProcessServices& processes;
  const std::string addInFolder;

  bool cancelRequested = false;    // stops a running compile at its next checkpoint
  bool compileWholeGroup = false;  // the user asked for the whole group
  bool lastGroupProject = false;   // the project in work is the last of its group
  std::string groupLogText;        // the log of the group so far
  GroupFolders groupFolders;       // of a group compile
  WrittenFiles writtenFiles;       // by the compile of a project or a group
  bool runsPrograms = true;        // whether a template's external programs run
  bool showsCommands = false;      // they are shown with their commands beside the log too
  bool showsPrograms = false;      // which one runs, and its error output, for who has no terminal
  bool programsRun = false;        // they do so now
  bool endsPrograms = false;       // those that run now are to end
  CompileTimes* times = nullptr;   // told of the phases of compiles, unless null

  ProgressDlg progressDlg;
  ProgressLog log;
  FileErrorDialog fileErrors;
  TextFiles files;
  ProjectSettings settings;
  SettingsFile settingsFile;

  /// Where the code page of a project comes from; empty: that of `files` stays.
  std::function<const CodePage&(const VBProject&)> codePageOf;

  /// Takes one line, without its end, of what is wrong beside what the log tells; empty: nobody
  /// does.
  std::function<void(const std::string&)> warn;

  /// Makes code page and settings those of the IDE's active project.
  void loadProjectSettings(VBE& ide);

  /// The store of the last compile: its macros can still answer.
  std::unique_ptr<store> currentStore;
};

}  // namespace tamrikon
