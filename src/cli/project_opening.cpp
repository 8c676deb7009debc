#include "cli/project_opening.h"

namespace tamrikon {

std::unique_ptr<HostIde> openProject(const ProjectOptions& options, Terminal& terminal,
                                     FileSystem& files) {
  const CodePage* page = options.codePage == 0 ? nullptr : CodePage::find(options.codePage);
  std::string why;
  std::unique_ptr<HostIde> ide = HostIde::open(
      files, files.absolute(options.project), page,
      [&](const std::string& warning) { terminal.complain(warning); }, why);
  if (!ide) terminal.complain("tamrikon: " + why);
  return ide;
}

void activateProject(Session& session, HostIde& ide, VBProject& project, Terminal& terminal) {
  ide.activate(project);
  session.files.setCodePage(ide.codePageOf(project));
  const std::string path = SettingsFile::settingsFilePath(ide);
  if (session.settingsFile.readProjectSettings(ide) || !session.files.files().isFile(path)) {
    return;
  }
  terminal.complain("warning: " + path +
                    " isn't a settings file that can be used; the defaults hold");
}

}  // namespace tamrikon
