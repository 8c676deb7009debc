// The dialog that shows what a comment is about to lose, and lets the user go back.
#pragma once

#include "comments/comment_lines.h"
#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class LostLinesDlg final : public Dialog {
 public:
  /// `lines` without the quotes that they have in the source.
  LostLinesDlg(Toolkit& toolkit, const CommentLines& lines);

  bool isAccepted = false;

  Label Label1{*this, "Label1",
               "These lines of the comment are in no field of the editor.\r\n"
               "They will be gone when the comment is written:"};
  TextBox LinesText{*this, "LinesText"};
  CommandButton GoBackBtn{*this, "GoBackBtn", "Go Back"};
  CommandButton WriteBtn{*this, "WriteBtn", "Write Without Them"};

 private:
  Layout layout() override;
};

}  // namespace tamrikon
