// The compile of all projects of a group, one after the other.
#pragma once

#include <functional>

#include "compiler/session.h"
#include "ide/ide.h"

namespace tamrikon {

struct GroupSteps {
  /// Makes a project the active one and its settings those of the session. False leaves the
  /// project out.
  std::function<bool(VBProject&)> activate;

  /// The project has been compiled; the progress dialog tells how.
  std::function<void(VBProject&)> compiled;
};

/// Shows the progress dialog once for each project that has components. The log runs on over all of
/// them.
void compileGroup(Session& session, VBE& ide, const GroupSteps& steps);

}  // namespace tamrikon
