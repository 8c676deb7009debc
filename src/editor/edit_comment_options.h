// The dialog "Comment Editor Options": how the editor lays out what it writes.
#pragma once

#include "settings/project_settings.h"
#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/text_controls.h"
#include "toolkit/value_controls.h"

namespace tamrikon {

/// The nearest length that a comment's lines may have.
int clampLineLength(int n);

class EditCommentOptions final : public Dialog {
 public:
  /// Both must outlive the dialog. OK changes the settings.
  EditCommentOptions(Toolkit& toolkit, ProjectSettings& settings);

  CheckBox Check1{*this, "Check1", "Word wrap in source code comments",
                  "Break the comment lines in source code to the specified length"};
  Label Label1{*this, "Label1", "Line length (in characters)"};
  TextBox Text1{*this, "Text1", "", "Set the line length in comments"};
  SpinControl UpDown1;
  CheckBox Check2{*this, "Check2", "Show $EOL$ as new line. Write new line as $EOL$.",
                  "Show $EOL$ in comments as new line. Write new line as $EOL$. New lines in "
                  "comments are ignored."};
  CommandButton OKButton{*this, "OKButton", "OK"};
  CommandButton CancelButton{*this, "CancelButton", "Cancel"};

 private:
  Layout layout() override;
  void onLoad() override;
  void enableLength();
  void takeSettings();

  ProjectSettings& settings_;
};

}  // namespace tamrikon
