#include "editor/open_comment_editor.h"

#include "editor/edit_comment.h"
#include "editor/selection.h"

namespace tamrikon {

void openCommentEditor(Session& session, VBE& VBInstance, const EditGrouping& group) {
  bool hasSelection = false;
  tryStep([&] {
    CodePane* pane = VBInstance.ActiveCodePane();
    hasSelection = pane != nullptr && !isEmpty(pane->GetSelection());
  });
  if (hasSelection) {
    session.toolkit.messageBox({"Tamrikon Comment Editor",
                                "Please remove the selection before opening the comment editor.",
                                MessageButtons::ok, MessageIcon::exclamation});
    return;
  }
  EditComment editor(session);
  editor.VBInstance = &VBInstance;
  editor.group = group;
  editor.showModal();
}

}  // namespace tamrikon
