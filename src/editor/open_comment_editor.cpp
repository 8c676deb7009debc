#include "editor/open_comment_editor.h"

#include "editor/edit_comment.h"
#include "editor/selection.h"

namespace tamrikon {

void openCommentEditor(Toolkit& toolkit, Session& session, VBE& VBInstance,
                       const EditGrouping& group) {
  bool hasSelection = false;
  tryStep([&] {
    CodePane* pane = VBInstance.ActiveCodePane();
    hasSelection = pane != nullptr && !isEmpty(pane->GetSelection());
  });
  if (hasSelection) {
    toolkit.messageBox({"Comment editor",
                        "Cannot run comment editor when source code selection is made. "
                        "Please cancel your text selection.",
                        MessageButtons::ok, MessageIcon::exclamation});
    return;
  }
  EditComment editor(toolkit, session);
  editor.VBInstance = &VBInstance;
  editor.group = group;
  editor.showModal();
}

}  // namespace tamrikon
