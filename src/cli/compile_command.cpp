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
#include "compiler/compile.h"
#include "compiler/group_compile.h"
#include "compiler/store.h"
#include "dialogs/show_documentation.h"
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
GroupFolders chooseFolders(Session& session, HostIde& ide, const CompileOptions& options) {
  std::string above = options.outputFolder;
  if (above.empty()) {
    ide.activate(ide.startupProject());
    session.files.setCodePage(ide.codePageOf(ide.startupProject()));
    session.settingsFile.readProjectSettings(ide);
    applySettings(session, ide, options.settings);
    above = session.settings.outputPath;
  }
  return foldersBelow(absoluteFolder(session, above), ide.VBProjects());
}

/// Warns of modules that the settings file doesn't list, if there is such a file.
void tellUnlistedModules(Session& session, HostIde& ide, Terminal& terminal) {
  if (session.settingsFile.unlistedModules(ide).empty()) return;
  for (const Diagnostic& fault : session.settingsFile.notes(ide)) terminal.report(fault);
  terminal.complain(
      "tamrikon: the command `settings` adds them with --add-modules, or notes with "
      "--leave-out-modules that they are left out on purpose");
}

/// The compile of the projects that the command line names.
class ProjectCompiles {
 public:
  /// All of them must outlive this object.
  ProjectCompiles(Session& session, HostIde& ide, const CompileOptions& options, Terminal& terminal,
                  CompileRun& run)
      : session_(session), ide_(ide), options_(options), terminal_(terminal), run_(run) {}

  /// Whether all projects were compiled.
  bool compileAll();

  /// What it has written, as one line; empty if no compile has finished.
  std::string summary() const { return summary_.sentence(); }

 private:
  bool prepare(VBProject& project);
  bool compile(const VBProject& project);
  bool compileProjectsOfGroup();

  Session& session_;
  HostIde& ide_;
  const CompileOptions& options_;
  Terminal& terminal_;
  CompileRun& run_;
  WrittenSummary summary_{session_, run_};
};

/// Makes a project the active one, with its settings as the command line changes them. False if
/// there is no template or no place for its pages.
bool ProjectCompiles::prepare(VBProject& project) {
  activateProject(session_, ide_, project, terminal_);
  const std::string fault = applySettings(session_, ide_, options_.settings);
  if (!fault.empty()) {
    terminal_.complain("tamrikon: " + fault);
    return false;
  }
  // An empty one in the settings file would be the root of the disk.
  std::string& output = session_.settings.outputPath;
  if (output.empty()) output = session_.settingsFile.defaultOutputFolder(ide_);
  if (options_.addsModules) {
    session_.settingsFile.addOtherModules(ide_);
  } else if (!setsKey(options_.settings, "comModules")) {
    tellUnlistedModules(session_, ide_, terminal_);
  }
  const std::string& file = options_.templateFile;
  if (!file.empty() && !chooseTemplate(session_, file, terminal_)) return false;
  const GroupFolders& folders = run_.groupFolders;
  if (!folders.above.empty()) {
    const std::string folder = folders.of(ide_.VBProjects(), project);
    return chooseOutput(session_, joinPath(folders.above, folder), terminal_);
  }
  if (!options_.outputFolder.empty()) {
    return chooseOutput(session_, absoluteFolder(session_, options_.outputFolder), terminal_);
  }
  session_.settingsFile.createOutputFolder();
  return true;
}

/// Compiles the active project and reports a failure. Whether it worked.
bool ProjectCompiles::compile(const VBProject& project) {
  session_.currentStore.reset();
  CompileResult result = compileProject(session_, ide_, run_, terminal_);
  session_.currentStore = std::move(result.compiled);
  switch (result.outcome) {
    case CompileOutcome::finished: summary_.addProject(); return true;
    case CompileOutcome::aborted:
      terminal_.complain("tamrikon: the compile of " + project.Name() + " was stopped");
      return false;
    case CompileOutcome::failed: break;
  }
  terminal_.complain("tamrikon: the compile of " + project.Name() + " failed");
  return false;
}

bool ProjectCompiles::compileAll() {
  std::vector<const VBProject*> projects;
  for (int number = 1; number <= ide_.VBProjects().Count(); ++number) {
    projects.push_back(&ide_.VBProjects().Item(number));
  }
  for (const Diagnostic& fault : missingModules(options_.settings, projects)) {
    terminal_.report(fault);
  }
  if (ide_.isGroup()) return compileProjectsOfGroup();
  VBProject& project = ide_.ActiveVBProject();
  return prepare(project) && compile(project);
}

bool ProjectCompiles::compileProjectsOfGroup() {
  if (options_.hasFolders) run_.groupFolders = chooseFolders(session_, ide_, options_);
  bool worked = true;
  GroupSteps steps;
  steps.activate = [&](VBProject& project) {
    const bool isReady = !terminal_.hasEndedPrograms() && prepare(project);
    worked = isReady && worked;
    return isReady;
  };
  steps.compile = [&](VBProject& project, bool) { worked = compile(project) && worked; };
  compileGroup(ide_, run_, steps);
  return worked;
}

bool saveAll(HostIde& ide, Terminal& terminal) {
  const std::vector<SaveFailure> failures = ide.saveAll();
  for (const SaveFailure& failure : failures) terminal.complain("tamrikon: " + failure.text);
  for (const Diagnostic& warning : ide.takeSaveWarnings()) terminal.report(warning);
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
  const auto detail = options.quiet     ? Terminal::Detail::faults
                      : options.verbose ? Terminal::Detail::commands
                                        : Terminal::Detail::messages;
  Terminal terminal(streams, detail);
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
  Session session(terminal.fileErrors, nativeFileSystem(), nativeProcessServices(), dataFolder());
  CompileRun run;
  run.runsPrograms = options.runsPrograms;
  if (options.printsTimes) run.times = &times;
  ProjectCompiles compiles(session, *ide, options, terminal, run);
  bool worked = compiles.compileAll();
  // A compile that was stopped has changed only some of the attributes.
  if (options.saves && worked) worked = saveAll(*ide, terminal);
  if (log.is_open() && !log.flush()) {
    terminal.complain("tamrikon: cannot write the log " + options.logFile);
    worked = false;
  }
  const std::string written = compiles.summary();
  if (!options.quiet && !written.empty()) terminal.print(written);
  if (options.opens && worked) worked = showDocumentation(session.currentStore.get(), terminal);
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
