#include "base/text.h"
#include "cli/commands.h"
#include "cli/project_opening.h"
#include "cli/setting_overrides.h"
#include "compiler/store.h"
#include "platform/data_folder.h"

namespace tamrikon {
namespace {

void printSettings(const Session& session, std::ostream& out) {
  out << replaceAll(session.settingsFile.settingsLines(), "\r", "\n") << '\n';
}

/// Whether they were saved.
bool changeSettings(Session& session, HostIde& ide, const std::vector<std::string>& settings,
                    Terminal& terminal) {
  applySettings(session, ide, settings);
  const int result = session.settingsFile.writeSettingsFile(ide);
  const std::string& backup = session.settingsFile.keptAs();
  if (!backup.empty()) terminal.complain("warning: its text is kept as " + backup);
  return result == 0;
}

}  // namespace

int settingsCommand(const SettingsOptions& options, const Streams& streams) {
  Terminal terminal(streams, false);
  const std::unique_ptr<HostIde> ide = openProject(options, terminal);
  if (!ide) return kFailed;
  Session session(terminal, nativeFileSystem(), nativeProcessServices(), dataFolder());
  bool worked = true;
  for (VBProject* project : projectsOf(*ide, options.allProjects)) {
    activateProject(session, *ide, *project, terminal);
    if (!options.settings.empty()) {
      worked = changeSettings(session, *ide, options.settings, terminal) && worked;
      continue;
    }
    if (options.allProjects) streams.out << "Project: " << project->Name() << '\n';
    printSettings(session, streams.out);
  }
  return worked ? kDone : kFailed;
}

}  // namespace tamrikon
