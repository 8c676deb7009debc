#include "editor/lost_lines_dlg.h"

#include "base/text.h"

namespace tamrikon {

LostLinesDlg::LostLinesDlg(Toolkit& toolkit, const CommentLines& lines)
    : Dialog(toolkit, "LostLinesDlg", "Lines that will be lost") {
  LinesText.setMultiLine(true);
  LinesText.setFixedFont(true);
  LinesText.setReadOnly(true);
  LinesText.setText(join(lines, "\r\n"));
  // Enter and Esc both lose nothing.
  GoBackBtn.setRole(ButtonRole::cancel);
  GoBackBtn.onClick = [this] { close(); };
  WriteBtn.onClick = [this] {
    isAccepted = true;
    close();
  };
}

Layout LostLinesDlg::layout() {
  return column({labelled(Label1, item(LinesText).sized(72, 8).growing()).growing(),
                 row({space(), item(GoBackBtn), item(WriteBtn)})});
}

}  // namespace tamrikon
