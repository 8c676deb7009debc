// The compile of a project: from its settings and its template to the pages.
#pragma once

#include <memory>

#include "compiler/compile_listener.h"
#include "compiler/compile_run.h"
#include "compiler/session.h"
#include "compiler/store.h"
#include "ide/ide.h"

namespace tamrikon {

struct CompileResult {
  CompileOutcome outcome = CompileOutcome::failed;
  bool explainsFailure = true;  // a message of the log says why it failed

  /// What the compile worked on: its macros can still answer.
  std::unique_ptr<store> compiled;
};

/// Compiles the active project of the IDE with the session's settings. A request to cancel ends it
/// at its next checkpoint; what was written stays. The listener must outlive the result.
CompileResult compileProject(Session& session, VBE& ide, CompileRun& run,
                             CompileListener& listener);

}  // namespace tamrikon
