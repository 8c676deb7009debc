// The compile of all projects of a group, one after the other.
#pragma once

#include <functional>

#include "compiler/compile_run.h"
#include "ide/ide.h"

namespace tamrikon {

struct GroupSteps {
  /// Makes a project the active one and its settings those of the session. False leaves the
  /// project out.
  std::function<bool(VBProject&)> activate;

  /// Compiles it. `isLast` says that it is the last one of the group.
  std::function<void(VBProject&, bool isLast)> compile;
};

/// Compiles each project that has components.
void compileGroup(VBE& ide, CompileRun& run, const GroupSteps& steps);

}  // namespace tamrikon
