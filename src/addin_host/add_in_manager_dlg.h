// The dialog that lists the registered add-ins, loads and unloads them, and says which are loaded
// on start-up.
#pragma once

#include <string>
#include <vector>

#include "addin_host/add_ins.h"
#include "toolkit/buttons.h"
#include "toolkit/containers.h"
#include "toolkit/dialog.h"
#include "toolkit/list_controls.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class AddInManagerDlg final : public Dialog {
 public:
  /// Both must outlive the dialog.
  AddInManagerDlg(Toolkit& toolkit, AddIns& addIns);

  /// Shows the dialog until it is cancelled, or all that was asked for is done. Add-ins are loaded
  /// and unloaded after it has gone, as they may show dialogs of their own.
  void run();

  Label AvailableLabel{*this, "AvailableLabel", "Available Add-Ins"};
  ListBox AvailableList{*this, "AvailableList"};
  Label DescriptionLabel{*this, "DescriptionLabel", "Description"};
  TextBox DescriptionText{*this, "DescriptionText"};
  Frame BehaviorFrame{*this, "BehaviorFrame", "Load Behavior"};
  CheckBox LoadedCheck{*this, "LoadedCheck", "Loaded/Unloaded"};
  CheckBox StartupCheck{*this, "StartupCheck", "Load on Startup"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

 private:
  struct Entry {
    RegisteredAddIn addIn;
    bool isLoaded = false;  // as the user wants it
    bool loadsOnStartup = false;
  };

  Layout layout() override;
  void onLoad() override;
  void fill();
  void showList();
  void showSelected();
  Entry* selected();
  std::vector<std::string> apply();

  AddIns& addIns_;
  std::vector<Entry> entries_;
  bool isAccepted_ = false;
};

}  // namespace tamrikon
