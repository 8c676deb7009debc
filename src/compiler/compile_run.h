// The compile of one project, or of all projects of a group, one after the other.
#pragma once

#include "compiler/compile_times.h"
#include "compiler/group_folders.h"
#include "compiler/written_files.h"

namespace tamrikon {

struct CompileRun {
  // What is wanted, set before it begins.
  bool compileWholeGroup = false;
  GroupFolders groupFolders;      // of a group compile
  bool runsPrograms = true;       // whether a template's external programs run
  bool showsPrograms = false;     // the status line names the one that runs
  CompileTimes* times = nullptr;  // takes the times of the phases, unless null

  // What the user asks for while it runs.
  bool cancelRequested = false;  // the compile of the current project ends at its next checkpoint
  bool endsPrograms = false;     // the external programs end now

  // What it does.
  bool programsRun = false;  // external programs are running
  WrittenFiles writtenFiles;
};

}  // namespace tamrikon
