// The command that opens the comment editor.
#pragma once

#include "compiler/session.h"
#include "editor/edited_comment.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

/// Edits the comment of the member or module at the cursor. A selection is refused, with a message.
/// `group` is run around each change of the source; it may be empty.
void openCommentEditor(Toolkit& toolkit, Session& session, VBE& VBInstance,
                       const EditGrouping& group = {});

}  // namespace tamrikon
