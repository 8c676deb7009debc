// Shows what becomes of the indentation of a comment in either mode.
#pragma once

#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class IndentExample final : public Dialog {
 public:
  /// `mode` is a value of the setting indentMode.
  IndentExample(Toolkit& toolkit, int mode);

  Label Label1{*this, "Label1", "Comment:"};
  Label Label2;
  Label Label3{*this, "Label3", "Output going to documentation file:"};
  Label Label4;
  Label Label5{*this, "Label5", "How it looks in CHM and HTML:"};
  Label Label6;
  Label Label7{*this, "Label7", "How it looks in RTF and HLP:"};
  Label Label8;
  CommandButton CancelButton{*this, "CancelButton", "Close"};

 private:
  Layout layout() override;
};

}  // namespace tamrikon
