#include "base/text.h"
#include "cli/commands.h"
#include "cli/data_folder.h"
#include "cli/project_opening.h"
#include "cli/setting_overrides.h"
#include "compiler/store.h"

namespace tamrikon {
namespace {

/// Whether the text of an unusable settings file, which the next save replaces, was put aside.
bool keepAside(Session& session, const std::string& path, Terminal& terminal) {
  FileSystem& files = session.files.files();
  const std::string backup = path + ".bak";
  std::string bytes;
  if (files.read(path, bytes) == FileError::none &&
      files.replaceAtomically(backup, bytes) == FileError::none) {
    terminal.complain("warning: its text is kept as " + backup);
    return true;
  }
  terminal.complain("tamrikon: cannot keep its text as " + backup + "; nothing was changed");
  return false;
}

}  // namespace

int settingsCommand(const SettingsOptions& options, const Streams& streams) {
  Terminal terminal(streams, false);
  const std::unique_ptr<HostIde> ide = openProject(options, terminal);
  if (!ide) return kFailed;
  Session session(terminal, nativeFileSystem(), nativeProcessServices(), dataFolder());
  const bool usable = activateProject(session, *ide, ide->startupProject(), terminal);
  if (options.settings.empty()) {
    streams.out << replaceAll(session.settingsFile.settingsLines(), "\r", "\n") << '\n';
    return kDone;
  }
  if (!usable && !keepAside(session, SettingsFile::settingsFilePath(*ide), terminal)) {
    return kFailed;
  }
  applySettings(session, *ide, options.settings);
  return session.settingsFile.writeSettingsFile(*ide) == 0 ? kDone : kFailed;
}

}  // namespace tamrikon
