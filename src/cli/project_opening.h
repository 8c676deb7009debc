// Opening the project of a command.
#pragma once

#include <memory>
#include <vector>

#include "cli/options.h"
#include "cli/terminal.h"
#include "compiler/session.h"
#include "host/host_ide.h"
#include "platform/file_system.h"

namespace tamrikon {

/// Null, with a line on the error stream, if the project can't be opened.
/// `files` must outlive the result.
std::unique_ptr<HostIde> openProject(const ProjectOptions& options, Terminal& terminal,
                                     FileSystem& files = nativeFileSystem());

/// All projects of a group, or the one that starts.
std::vector<VBProject*> projectsOf(const HostIde& ide, bool all);

/// Makes `project` the active one and reads its settings. A settings file that is there but can't
/// be used is told on the error stream; the defaults hold then.
void activateProject(Session& session, HostIde& ide, VBProject& project, Terminal& terminal);

}  // namespace tamrikon
