// The commands, each giving an exit status.
#pragma once

#include <string>

#include "cli/command_line.h"
#include "cli/options.h"

namespace tamrikon {

/// Compiles the documentation of a project, or of all projects of a group.
int compileCommand(const CompileOptions& options, const Streams& streams);

/// Inserts skeleton comments into the sources of a project.
int commentCommand(const CommentOptions& options, const Streams& streams);

/// What is wrong with the targets, each being one by its form; empty if nothing is.
std::string faultOfTargets(const CommentOptions& options);

/// Prints the code example of a selection.
int exampleCommand(const ExampleOptions& options, const Streams& streams);

/// Prints the settings of a project, or changes and saves them.
int settingsCommand(SettingsOptions options, const Streams& streams);

/// Lists the templates of the templates folder with their descriptions.
int templatesCommand(int codePage, const Streams& streams);

}  // namespace tamrikon
