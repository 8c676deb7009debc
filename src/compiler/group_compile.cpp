#include "compiler/group_compile.h"

namespace tamrikon {

void compileGroup(Session& session, VBE& ide, const GroupSteps& steps) {
  session.compileWholeGroup = true;
  session.groupLogText.clear();
  session.writtenFiles.beginRun();
  session.progressDlg.VBInstance = &ide;
  const VBProjects& projects = ide.VBProjects();
  int count = 0;
  for (int number = 1; number <= projects.Count(); ++number) {
    VBProject& project = projects.Item(number);
    if (project.VBComponents().Count() == 0) continue;
    session.lastGroupProject = ++count == projects.Count();
    if (!steps.activate(project)) continue;
    session.progressDlg.showModal();
    steps.compiled(project);
  }
  session.groupLogText.clear();
}

}  // namespace tamrikon
