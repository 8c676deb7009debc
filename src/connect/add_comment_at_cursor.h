// The command that begins a comment for the member at the caret.
#pragma once

#include "ide/ide.h"
#include "settings/project_settings.h"

namespace tamrikon {

/// Inserts the skeleton comment of the member that the caret of the active code window stands in,
/// or on whose declaration it stands; elsewhere, that of the module. Nothing happens while text is
/// selected. A step that fails ends it, and what was done before stays.
void addCommentAtCursor(VBE& VBInstance, const ProjectSettings& settings);

}  // namespace tamrikon
