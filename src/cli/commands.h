// The commands, each giving an exit status.
#pragma once

#include "cli/command_line.h"
#include "cli/options.h"

namespace tamrikon {

/// Compiles the documentation of a project, or of all projects of a group.
int compileCommand(const CompileOptions& options, const Streams& streams);

/// Prints the settings of a project, or changes and saves them.
int settingsCommand(const SettingsOptions& options, const Streams& streams);

/// Lists the templates of the templates folder with their descriptions.
int templatesCommand(int codePage, const Streams& streams);

}  // namespace tamrikon
