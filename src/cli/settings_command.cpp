#include "base/text.h"
#include "cli/commands.h"
#include "cli/project_opening.h"
#include "cli/setting_overrides.h"
#include "compiler/store.h"
#include "platform/data_folder.h"

namespace tamrikon {
int settingsCommand(const SettingsOptions& options, const Streams& streams) {
  Terminal terminal(streams, false);
  const std::unique_ptr<HostIde> ide = openProject(options, terminal);
  if (!ide) return kFailed;
  Session session(terminal, nativeFileSystem(), nativeProcessServices(), dataFolder());
  activateProject(session, *ide, ide->startupProject(), terminal);
  if (options.settings.empty()) {
    streams.out << replaceAll(session.settingsFile.settingsLines(), "\r", "\n") << '\n';
    return kDone;
  }
  applySettings(session, *ide, options.settings);
  const int result = session.settingsFile.writeSettingsFile(*ide);
  const std::string& backup = session.settingsFile.keptAs();
  if (!backup.empty()) terminal.complain("warning: its text is kept as " + backup);
  return result == 0 ? kDone : kFailed;
}

}  // namespace tamrikon
