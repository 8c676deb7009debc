#include "connect/add_comment_at_cursor.h"

#include "model/wrappers.h"

namespace tamrikon {

void addCommentAtCursor(VBE& VBInstance, const ProjectSettings& settings) {
  tryStep([&] {
    const CodePane* pane = VBInstance.ActiveCodePane();
    if (pane == nullptr) return;
    const Selection caret = pane->GetSelection();
    if (caret.startLine != caret.endLine || caret.startColumn != caret.endColumn) return;
    ModuleSource source(pane->CodeModule());
    getWrapperAtLine(source, caret.startLine)->addComment(settings);
  });
}

}  // namespace tamrikon
