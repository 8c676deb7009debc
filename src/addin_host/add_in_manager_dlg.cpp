#include "addin_host/add_in_manager_dlg.h"

#include <algorithm>
#include <optional>

#include "base/text.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

AddInManagerDlg::AddInManagerDlg(Toolkit& toolkit, AddIns& addIns)
    : Dialog(toolkit, "AddInManager", "Add-In Manager"), addIns_(addIns) {
  cmdOK.setRole(ButtonRole::default_);
  cmdCancel.setRole(ButtonRole::cancel);
  DescriptionText.setMultiLine(true);
  DescriptionText.setReadOnly(true);
  AvailableList.onClick = [this] { showSelected(); };
  AvailableList.onDblClick = [this] {
    LoadedCheck.setChecked(!LoadedCheck.isChecked());
    LoadedCheck.onClick();
  };
  LoadedCheck.onClick = [this] {
    selected()->isLoaded = LoadedCheck.isChecked();
    showList();
  };
  StartupCheck.onClick = [this] {
    selected()->loadsOnStartup = StartupCheck.isChecked();
    showList();
  };
  cmdOK.onClick = [this] {
    isAccepted_ = true;
    close();
  };
  cmdCancel.onClick = [this] { close(); };
}

void AddInManagerDlg::run() {
  for (;;) {
    fill();
    isAccepted_ = false;
    showModal();
    if (!isAccepted_) return;
    const std::vector<std::string> failures = apply();
    if (failures.empty()) return;
    toolkit().messageBox({caption(), join(failures, "\r\r")});
  }
}

void AddInManagerDlg::fill() {
  entries_.clear();
  for (RegisteredAddIn& addIn : addIns_.registered()) {
    const bool isLoaded = addIns_.isConnected(addIn.progId);
    const bool onStartup = addIn.loadsOnStartup;
    entries_.push_back({std::move(addIn), isLoaded, onStartup});
  }
}

void AddInManagerDlg::onLoad() {
  AvailableList.clear();
  showList();
  if (!entries_.empty()) AvailableList.select(0);
  showSelected();
}

void AddInManagerDlg::showList() {
  const int selection = AvailableList.selected();
  std::vector<std::string> items;
  for (const Entry& entry : entries_) {
    std::string behavior = entry.loadsOnStartup ? "Startup / " : "";
    behavior += entry.isLoaded ? "Loaded" : "Unloaded";
    items.push_back(entry.addIn.friendlyName + " (" + behavior + ")");
  }
  AvailableList.setItems(std::move(items));
  AvailableList.select(selection);
}

void AddInManagerDlg::showSelected() {
  const Entry* entry = selected();
  LoadedCheck.setEnabled(entry != nullptr);
  StartupCheck.setEnabled(entry != nullptr);
  DescriptionText.setText(entry == nullptr ? "No add-in is registered." : entry->addIn.description);
  LoadedCheck.setChecked(entry != nullptr && entry->isLoaded);
  StartupCheck.setChecked(entry != nullptr && entry->loadsOnStartup);
}

AddInManagerDlg::Entry* AddInManagerDlg::selected() {
  const int index = AvailableList.selected();
  return index < 0 ? nullptr : &entries_[static_cast<std::size_t>(index)];
}

/// A line for everything that fails.
std::vector<std::string> AddInManagerDlg::apply() {
  std::vector<std::string> failures;
  const auto note = [&](std::optional<std::string> failure) {
    if (failure) failures.push_back(std::move(*failure));
  };
  for (const Entry& entry : entries_) {
    const std::string& progId = entry.addIn.progId;
    const bool isChanged = entry.isLoaded != addIns_.isConnected(progId);
    if (isChanged && entry.isLoaded) note(addIns_.connect(progId, vbext_cm_AfterStartup));
    if (isChanged && !entry.isLoaded) addIns_.disconnect(progId, vbext_dm_UserClosed);
    if (isChanged || entry.loadsOnStartup != entry.addIn.loadsOnStartup) {
      note(addIns_.setLoadsOnStartup(progId, entry.loadsOnStartup));
    }
  }
  return failures;
}

Layout AddInManagerDlg::layout() {
  return column({
      labelled(AvailableLabel, item(AvailableList).sized(48, 8).growing()).growing(),
      row({labelled(DescriptionLabel, item(DescriptionText).sized(28, 3).growing()).growing(),
           framed(BehaviorFrame, column({item(LoadedCheck), item(StartupCheck)}))}),
      row({space(), item(cmdOK), item(cmdCancel)}),
  });
}

}  // namespace tamrikon
