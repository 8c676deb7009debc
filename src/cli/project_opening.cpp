#include "cli/project_opening.h"

namespace tamrikon {

std::unique_ptr<HostIde> openProject(const ProjectOptions& options, Terminal& terminal,
                                     FileSystem& files) {
  const CodePage* page = options.codePage == 0 ? nullptr : CodePage::find(options.codePage);
  std::string why;
  std::unique_ptr<HostIde> ide = HostIde::open(
      files, files.absolute(options.project), page,
      [&](const Diagnostic& fault) { terminal.report(fault); }, why);
  if (!ide) terminal.complain("tamrikon: " + why);
  return ide;
}

std::vector<VBProject*> projectsOf(const HostIde& ide, bool all) {
  if (!all) return {&ide.startupProject()};
  std::vector<VBProject*> projects;
  const VBProjects& in = ide.VBProjects();
  for (int number = 1; number <= in.Count(); ++number) projects.push_back(&in.Item(number));
  return projects;
}

void activateProject(Session& session, HostIde& ide, VBProject& project, Terminal& terminal) {
  ide.activate(project);
  session.files.setCodePage(ide.codePageOf(project));
  session.settingsFile.readProjectSettings(ide);
  if (const auto fault = session.settingsFile.faultOfFile()) terminal.report(*fault);
}

}  // namespace tamrikon
