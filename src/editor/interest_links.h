// The dialog "Interesting references", which proposes links to classes of the project.
#pragma once

#include <string>
#include <vector>

#include "ide/ide.h"
#include "model/wrapper.h"
#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/list_controls.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class InterestLinks final : public Dialog {
 public:
  /// All of them must outlive the dialog.
  InterestLinks(Toolkit& toolkit, const Wrapper& member, const VBE& VBInstance);

  /// The proposals that the user took; none if the dialog was cancelled.
  std::vector<std::string> chosen;

  Label Label1{*this, "Label1",
               "Following classes that implement, are implemented or used by current member were "
               "found:"};
  CheckList List1{*this, "List1"};
  CommandButton OKButton{*this, "OKButton", "Add selected"};
  CommandButton CancelButton{*this, "CancelButton", "Cancel"};

 private:
  Layout layout() override;
  void onLoad() override;

  const Wrapper& member_;
  const VBE& ide_;
};

}  // namespace tamrikon
