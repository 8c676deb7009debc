#include <fstream>
#include <iomanip>
#include <memory>
#include <sstream>
#include <utility>
#include <vector>

#include "base/paths.h"
#include "cli/commands.h"
#include "cli/project_opening.h"
#include "cli/setting_overrides.h"
#include "cli/terminal.h"
#include "cli/written_summary.h"
#include "compiler/group_compile.h"
#include "compiler/store.h"
#include "platform/data_folder.h"

namespace tamrikon {
namespace {

/// Whether the template of --template is there.
bool chooseTemplate(Session& session, const std::string& file, Terminal& terminal) {
  ProjectSettings& settings = session.settings;
  std::string path = hasExtension(file) ? file : file + ".tmkt";
  if (lastName(path) == path) {
    path = joinPath(settings.templateFolder, path);
  } else if (!isAbsolutePath(path)) {
    path = session.files.files().absolute(path);
  }
  settings.templatePath = path;
  settings.templateFolder = folderOf(path);
  if (session.files.files().isFile(path)) return true;
  terminal.complain("tamrikon: " + faultOfMissingTemplate(session.files.files(), path));
  return false;
}

/// Whether the output folder is there.
bool chooseOutput(Session& session, const std::string& path, Terminal& terminal) {
  FileSystem& files = session.files.files();
  session.settings.outputPath = path;
  if (files.createFolders(path) == FileError::none) return true;
  terminal.complain("tamrikon: cannot create the output folder " + path);
  return false;
}

std::string absoluteFolder(Session& session, const std::string& folder) {
  return isAbsolutePath(folder) ? folder : session.files.files().absolute(folder);
}

/// Without --output, the output folder of the start-up project is that of the group.
void chooseFolders(Session& session, HostIde& ide, const CompileOptions& options) {
  std::string above = options.outputFolder;
  if (above.empty()) {
    ide.activate(ide.startupProject());
    session.files.setCodePage(ide.codePageOf(ide.startupProject()));
    session.settingsFile.readProjectSettings(ide);
    applySettings(session, ide, options.settings);
    above = session.settings.outputPath;
  }
  session.groupFolders = foldersBelow(absoluteFolder(session, above), ide.VBProjects());
}

/// Warns of modules that the settings file doesn't list, if there is such a file.
void tellUnlistedModules(Session& session, HostIde& ide, Terminal& terminal) {
  if (session.settingsFile.unlistedModules(ide).empty()) return;
  for (const std::string& note : session.settingsFile.notes(ide)) {
    terminal.complain("warning: " + note);
  }
  terminal.complain(
      "tamrikon: the command `settings` adds them with --add-modules, or notes with "
      "--leave-out-modules that they are left out on purpose");
}

/// Makes a project the active one, with its settings as the command line changes them. False if
/// there is no template or no place for its pages.
bool prepare(Session& session, HostIde& ide, VBProject& project, const CompileOptions& options,
             Terminal& terminal) {
  activateProject(session, ide, project, terminal);
  const std::string fault = applySettings(session, ide, options.settings);
  if (!fault.empty()) {
    terminal.complain("tamrikon: " + fault);
    return false;
  }
  // An empty one in the settings file would be the root of the disk.
  std::string& output = session.settings.outputPath;
  if (output.empty()) output = session.settingsFile.defaultOutputFolder(ide);
  if (options.addsModules) {
    session.settingsFile.addOtherModules(ide);
  } else if (!setsKey(options.settings, "comModules")) {
    tellUnlistedModules(session, ide, terminal);
  }
  const std::string& file = options.templateFile;
  if (!file.empty() && !chooseTemplate(session, file, terminal)) return false;
  const GroupFolders& folders = session.groupFolders;
  if (!folders.above.empty()) {
    const std::string folder = folders.of(ide.VBProjects(), project);
    return chooseOutput(session, joinPath(folders.above, folder), terminal);
  }
  if (!options.outputFolder.empty()) {
    return chooseOutput(session, absoluteFolder(session, options.outputFolder), terminal);
  }
  session.settingsFile.createOutputFolder();
  return true;
}

/// Whether the last compile, that of `project`, worked.
bool reportOutcome(Session& session, const VBProject& project, Terminal& terminal) {
  const std::string name = project.Name();
  switch (session.progressDlg.outcome()) {
    case CompileOutcome::finished: return true;
    case CompileOutcome::aborted:
      terminal.complain("tamrikon: the compile of " + name + " was stopped");
      return false;
    case CompileOutcome::failed: break;
  }
  terminal.complain("tamrikon: the compile of " + name + " failed");
  return false;
}

/// Ctrl+C while a template's programs run lets them end; a second one ends them, and `ends` the
/// whole run.
void handleInterrupts(Session& session, Terminal& terminal, bool& ends) {
  terminal.interrupted = [&](int times) {
    if (!session.programsRun) return;
    ends = times > 1;
    session.endsPrograms = ends;
    if (ends) return;
    terminal.complain(
        "tamrikon: waiting for the template's programs to end; Ctrl+C ends them and tamrikon");
  };
}

/// Whether all projects were compiled; `summary` has those that were.
bool compileAll(Session& session, HostIde& ide, const CompileOptions& options, Terminal& terminal,
                WrittenSummary& summary) {
  std::vector<const VBProject*> projects;
  for (int number = 1; number <= ide.VBProjects().Count(); ++number) {
    projects.push_back(&ide.VBProjects().Item(number));
  }
  for (const std::string& warning : warningsOfMissingModules(options.settings, projects)) {
    terminal.complain(warning);
  }
  bool ends = false;
  handleInterrupts(session, terminal, ends);
  if (!ide.isGroup()) {
    VBProject& project = ide.ActiveVBProject();
    if (!prepare(session, ide, project, options, terminal)) return false;
    session.progressDlg.VBInstance = &ide;
    session.progressDlg.showModal();
    if (!reportOutcome(session, project, terminal)) return false;
    summary.addProject();
    return true;
  }
  if (options.hasFolders) chooseFolders(session, ide, options);
  bool worked = true;
  GroupSteps steps;
  steps.activate = [&](VBProject& project) {
    const bool ready = !ends && prepare(session, ide, project, options, terminal);
    worked = ready && worked;
    return ready;
  };
  steps.compiled = [&](VBProject& project) {
    const bool finished = reportOutcome(session, project, terminal);
    if (finished) summary.addProject();
    worked = finished && worked;
  };
  compileGroup(session, ide, steps);
  return worked;
}

bool saveAll(HostIde& ide, Terminal& terminal) {
  const std::vector<SaveFailure> failures = ide.saveAll();
  for (const SaveFailure& failure : failures) terminal.complain("tamrikon: " + failure.text);
  for (const std::string& warning : ide.takeSaveWarnings()) terminal.complain(warning);
  return failures.empty();
}

/// In seconds of the clock on the wall.
void printTimes(const CompileTimes& times, std::ostream& out) {
  struct Named {
    CompilePhase phase;
    const char* name;
  };
  constexpr Named kNamed[] = {
      {CompilePhase::reading, "reading"},     {CompilePhase::analysis, "analysis"},
      {CompilePhase::expansion, "expansion"}, {CompilePhase::writing, "writing"},
      {CompilePhase::programs, "programs"},   {CompilePhase::other, "other"},
  };
  double total = 0;
  std::ostringstream text;
  text << std::fixed << std::setprecision(3);
  const auto print = [&](const char* name, double seconds) {
    text << std::left << std::setw(10) << name << std::right << std::setw(10) << seconds << " s\n";
  };
  for (const Named& named : kNamed) {
    const double seconds = times.of(named.phase).count();
    print(named.name, seconds);
    total += seconds;
  }
  print("all", total);
  out << text.str();
}

/// Keeps an object to the end of the process, which takes all memory back at once: a large project
/// is hundreds of thousands of pieces, and to free them one by one takes longer than reading them.
template <typename T>
void keepToTheEnd(std::unique_ptr<T> object) {
  static auto& kept = *new std::vector<std::unique_ptr<T>>();
  kept.push_back(std::move(object));
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
  CompileTimes times;
  times.enter(CompilePhase::reading);
  std::unique_ptr<HostIde> ide = openProject(options, terminal);
  times.enter(CompilePhase::other);
  if (!ide) return kFailed;
  if (options.saves) ide->writeHeldHelpIds();
  Session session(terminal, nativeFileSystem(), nativeProcessServices(), dataFolder());
  session.runsPrograms = options.runsPrograms;
  session.showsCommands = options.verbose;
  session.log.onMessage = [&](const std::string& text, const std::string& wording) {
    terminal.showMessage(text, wording);
  };
  session.warn = [&](const std::string& line) { terminal.complain(line); };
  if (options.printsTimes) session.times = &times;
  WrittenSummary summary(session);
  bool worked = compileAll(session, *ide, options, terminal, summary);
  // A compile that was stopped has changed only some of the attributes.
  if (options.saves && worked) worked = saveAll(*ide, terminal);
  if (log.is_open() && !log.flush()) {
    terminal.complain("tamrikon: cannot write the log " + options.logFile);
    worked = false;
  }
  const std::string written = summary.sentence();
  if (!options.quiet && !written.empty()) terminal.print(written);
  if (options.opens && worked) worked = session.progressDlg.showDocumentation();
  if (options.printsTimes) {
    times.enter(CompilePhase::other);
    printTimes(times, streams.err);
  }
  keepToTheEnd(std::move(session.currentStore));
  keepToTheEnd(std::move(ide));
  if (!worked) return kFailed;
  return options.failsOnWarnings && terminal.hadWarnings() ? kHadWarnings : kDone;
}

}  // namespace tamrikon
