#include <fstream>

#include "base/paths.h"
#include "cli/commands.h"
#include "cli/data_folder.h"
#include "cli/project_opening.h"
#include "cli/setting_overrides.h"
#include "cli/terminal.h"
#include "compiler/start_compile.h"
#include "compiler/store.h"

namespace tamrikon {
namespace {

void chooseTemplate(Session& session, const std::string& file) {
  ProjectSettings& settings = session.settings;
  std::string path = hasExtension(file) ? file : file + ".tmkt";
  if (lastName(path) == path) {
    path = joinPath(settings.templateFolder, path);
  } else if (!isAbsolutePath(path)) {
    path = session.files.files().absolute(path);
  }
  settings.templatePath = path;
  settings.templateFolder = folderOf(path);
}

/// Whether the folder of --output is there.
bool chooseOutput(Session& session, const std::string& folder, Terminal& terminal) {
  FileSystem& files = session.files.files();
  const std::string path = isAbsolutePath(folder) ? folder : files.absolute(folder);
  session.settings.outputPath = path;
  if (files.createFolders(path) == FileError::none) return true;
  terminal.complain("tamrikon: cannot create the output folder " + path);
  return false;
}

/// Whether the compile of the active project worked.
bool compileActive(Session& session, HostIde& ide, const CompileOptions& options,
                   Terminal& terminal) {
  applySettings(session, ide, options.settings);
  if (!options.templateFile.empty()) chooseTemplate(session, options.templateFile);
  if (options.outputFolder.empty()) {
    session.settingsFile.createOutputFolder();
  } else if (!chooseOutput(session, options.outputFolder, terminal)) {
    return false;
  }
  const std::string name = ide.ActiveVBProject().Name();
  switch (startCompile(session, ide)) {
    case CompileOutcome::finished: return true;
    case CompileOutcome::aborted:
      terminal.complain("tamrikon: the compile of " + name + " was stopped");
      return false;
    case CompileOutcome::failed: break;
  }
  terminal.complain("tamrikon: the compile of " + name + " failed");
  return false;
}

bool compileAll(Session& session, HostIde& ide, const CompileOptions& options, Terminal& terminal) {
  if (!ide.isGroup()) {
    activateProject(session, ide, ide.ActiveVBProject(), terminal);
    return compileActive(session, ide, options, terminal);
  }
  session.compileWholeGroup = true;
  bool worked = true;
  const VBProjects& projects = ide.VBProjects();
  for (int number = 1; number <= projects.Count(); ++number) {
    VBProject& project = projects.Item(number);
    if (project.VBComponents().Count() == 0) continue;
    activateProject(session, ide, project, terminal);
    worked = compileActive(session, ide, options, terminal) && worked;
  }
  return worked;
}

bool saveAll(HostIde& ide, Terminal& terminal) {
  const std::vector<std::string> failures = ide.saveAll();
  for (const std::string& failure : failures) terminal.complain("tamrikon: " + failure);
  return failures.empty();
}

}  // namespace

int compileCommand(const CompileOptions& options, const Streams& streams) {
  std::ofstream log;
  Terminal terminal(streams, options.quiet);
  if (!options.logFile.empty()) {
    log.open(nativePath(options.logFile), std::ios::binary | std::ios::trunc);
    if (!log) {
      terminal.complain("tamrikon: cannot write the log " + options.logFile);
      return kFailed;
    }
    terminal.setLog(log);
  }
  const std::unique_ptr<HostIde> ide = openProject(options, terminal);
  if (!ide) return kFailed;
  Session session(terminal, nativeFileSystem(), nativeProcessServices(), dataFolder());
  session.runsPrograms = options.runsPrograms;
  bool worked = compileAll(session, *ide, options, terminal);
  if (options.saves) worked = saveAll(*ide, terminal) && worked;
  if (log.is_open() && !log.flush()) {
    terminal.complain("tamrikon: cannot write the log " + options.logFile);
    worked = false;
  }
  if (!worked) return kFailed;
  return options.failsOnWarnings && terminal.hadWarnings() ? kHadWarnings : kDone;
}

}  // namespace tamrikon
