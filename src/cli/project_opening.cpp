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
  const std::string& fault = session.settingsFile.fault();
  if (!fault.empty()) terminal.complain("warning: " + fault + "; the defaults hold");
}

}  // namespace tamrikon
