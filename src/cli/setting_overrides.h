// Settings given on the command line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "compiler/session.h"
#include "ide/ide.h"

namespace tamrikon {

/// What is wrong with a KEY=VALUE argument, naming it; empty if nothing is. Other than in the
/// settings file, a switch is on or off by 1 and 0, yes and no, true and false alone.
std::string faultOfSetting(const std::string& argument);

/// Applies KEY=VALUE arguments without faults to the session's settings, by the rules of the
/// settings file. Relative folders count from the current folder; comModules takes names divided
/// by commas, in place of the selection before. The template is looked up when all else is set,
/// with ".tmkt" added if it has no extension. What is wrong if it isn't there; otherwise empty.
std::string applySettings(Session& session, VBE& ide, const std::vector<std::string>& arguments);

/// What to say of a template that isn't there, with the name that may have been meant.
std::string faultOfMissingTemplate(FileSystem& files, const std::string& path);

/// Whether one of the arguments sets `key`.
bool setsKey(const std::vector<std::string>& arguments, std::string_view key);

/// A warning for each module that comModules among the arguments names and that none of the
/// projects has.
std::vector<Diagnostic> missingModules(const std::vector<std::string>& arguments,
                                       const std::vector<const VBProject*>& projects);

}  // namespace tamrikon
