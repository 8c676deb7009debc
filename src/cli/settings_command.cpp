#include "base/paths.h"
#include "base/text.h"
#include "cli/commands.h"
#include "cli/project_opening.h"
#include "cli/setting_overrides.h"
#include "compiler/store.h"
#include "host/kept_code_page.h"
#include "platform/data_folder.h"
#include "source/file_on_disk.h"

namespace tamrikon {
namespace {

void printSettings(const Session& session, std::ostream& out) {
  out << replaceAll(session.settingsFile.settingsLines(), "\r", "\n") << '\n';
}

/// What is wrong with the settings that are given; empty if nothing is and they were applied.
std::string applyGiven(Session& session, HostIde& ide, const std::vector<std::string>& given) {
  std::string fault = applySettings(session, ide, given);
  if (!fault.empty() || !setsKey(given, "templateFolder")) return fault;
  if (session.settingsFile.findsTemplate()) return {};
  return "there is no template " + std::string(lastName(session.settings.templatePath)) + " in " +
         session.settings.templateFolder + ": set templatePath as well";
}

/// Whether they were saved.
bool changeSettings(Session& session, HostIde& ide, const SettingsOptions& options,
                    Terminal& terminal) {
  const std::string fault = applyGiven(session, ide, options.settings);
  if (!fault.empty()) {
    terminal.complain("tamrikon: " + fault);
    return false;
  }
  for (const Diagnostic& fault : missingModules(options.settings, {&ide.ActiveVBProject()})) {
    terminal.report(fault);
  }
  SettingsFile& file = session.settingsFile;
  if (options.addsModules) file.addOtherModules(ide);
  if (options.leavesOutModules) file.leaveOutOtherModules(ide);
  const int result = file.writeSettingsFile(ide);
  const std::string& backup = file.keptAs();
  if (!backup.empty()) {
    terminal.report({Diagnostic::About::project, Severity::warning, "kept-settings",
                     "its text is kept as " + backup});
  }
  return result == 0;
}

/// Whether the page was kept beside the project.
bool keepPage(const VBProject& project, int page, Terminal& terminal) {
  const std::string path = project.FileName();
  const FileError error = keepCodePage(nativeFileSystem(), path, *CodePage::find(page));
  if (error == FileError::none) return true;
  terminal.complain("tamrikon: cannot write " + keptCodePagePath(path) + ": " + reasonOf(error));
  return false;
}

}  // namespace

int settingsCommand(SettingsOptions options, const Streams& streams) {
  Terminal terminal(streams);
  const int kept = options.keptCodePage;
  if (kept != 0 && options.codePage == 0) options.codePage = kept;
  const std::unique_ptr<HostIde> ide = openProject(options, terminal);
  if (!ide) return kFailed;
  Session session(terminal.fileErrors, nativeFileSystem(), nativeProcessServices(), dataFolder());
  bool worked = true;
  for (VBProject* project : projectsOf(*ide, options.allProjects)) {
    if (kept != 0) worked = keepPage(*project, kept, terminal) && worked;
    if (kept != 0 && !options.changesSettings()) continue;
    activateProject(session, *ide, *project, terminal);
    if (options.changesSettings()) {
      worked = changeSettings(session, *ide, options, terminal) && worked;
      continue;
    }
    if (options.allProjects) streams.out << "Project: " << project->Name() << '\n';
    printSettings(session, streams.out);
  }
  return worked ? kDone : kFailed;
}

}  // namespace tamrikon
