// Settings given on the command line.
#pragma once

#include <string>
#include <vector>

#include "compiler/session.h"
#include "ide/ide.h"

namespace tamrikon {

/// What is wrong with a KEY=VALUE argument, naming it; empty if nothing is.
std::string faultOfSetting(const std::string& argument);

/// Applies KEY=VALUE arguments without faults to the session's settings, by the rules of the
/// settings file. Relative folders count from the current folder; comModules takes names divided
/// by commas, in place of the selection before.
void applySettings(Session& session, VBE& ide, const std::vector<std::string>& arguments);

}  // namespace tamrikon
