// The dialog for one line of text.
#pragma once

#include <string>

#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class TextInput final : public Dialog {
 public:
  explicit TextInput(Toolkit& toolkit)
      : Dialog(toolkit, "TextInput", "Enter default value of the tag") {
    OKButton.setRole(ButtonRole::default_);
    CancelButton.setRole(ButtonRole::cancel);
    OKButton.onClick = [this] {
      text = Text1.text();
      close();
    };
    CancelButton.onClick = [this] { close(); };
  }

  /// What the box holds at first, and at the end if the user said OK.
  std::string text;

  TextBox Text1{*this, "Text1"};
  CommandButton OKButton{*this, "OKButton", "OK"};
  CommandButton CancelButton{*this, "CancelButton", "Cancel"};

 private:
  Layout layout() override {
    return column(
        {item(Text1).sized(50), space(), row({space(), item(OKButton), item(CancelButton)})});
  }
  void onLoad() override { Text1.setText(text); }
  void onActivate() override {
    Text1.setFocus();
    Text1.selectAll();
  }
};

}  // namespace tamrikon
