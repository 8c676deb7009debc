// One compile from start to end.
#pragma once

#include "compiler/session.h"
#include "ide/ide.h"

namespace tamrikon {

enum class CompileOutcome { finished, aborted, failed };

/// Gives the session a new store, loads the template and compiles the IDE's active project with the
/// session's settings. `failed` is a failure that nothing below caught.
CompileOutcome startCompile(Session& session, VBE& ide);

}  // namespace tamrikon
