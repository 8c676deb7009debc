#include "compiler/group_compile.h"

namespace tamrikon {

void compileGroup(VBE& ide, CompileRun& run, const GroupSteps& steps) {
  run.compileWholeGroup = true;
  run.writtenFiles.beginRun();
  const VBProjects& projects = ide.VBProjects();
  int count = 0;
  for (int number = 1; number <= projects.Count(); ++number) {
    VBProject& project = projects.Item(number);
    if (project.VBComponents().Count() == 0) continue;
    ++count;
    if (steps.activate(project)) steps.compile(project, count == projects.Count());
  }
}

}  // namespace tamrikon
