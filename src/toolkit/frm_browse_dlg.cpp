#include "toolkit/frm_browse_dlg.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "base/paths.h"
#include "base/text.h"
#include "toolkit/toolkit.h"

namespace tamrikon {
namespace {

std::string childOf(const std::string& folder, const std::string& name) {
  return endsInSeparator(folder) ? folder + name : folder + "/" + name;
}

/// As far as the folders of `path` are there below `root`.
std::string existingPart(const FolderTree& tree, const std::string& root, const std::string& path) {
  std::string found = root;
  const std::string wanted = nativePath(path);
  if (!wanted.starts_with(root)) return found;
  const std::string below = wanted.substr(root.size());
  for (const std::string_view part : split(below, '/')) {
    if (part.empty()) continue;
    const std::string name(part);
    const std::vector<std::string> names = tree.subfolders(found);
    if (std::find(names.begin(), names.end(), name) == names.end()) break;
    found = childOf(found, name);
  }
  return found;
}

}  // namespace

frmBrowseDlg::frmBrowseDlg(Toolkit& toolkit, FolderTree::Lister lister, Maker maker)
    : Dialog(toolkit, "frmBrowseDlg", "Browse For Folder"),
      FolderTreeview1(*this, "FolderTreeview1", std::move(lister)),
      maker_(std::move(maker)) {
  cmdOK.setRole(ButtonRole::default_);
  cmdCancel.setRole(ButtonRole::cancel);
  FolderTreeview1.onSelectionChanged = [this] { BrowseDlg_SelectionChanged(); };
  cmdNewFolder.onClick = [this] { makeFolder(); };
  txtNewFolder.onKeyDown = [this](KeyEvent& event) {
    if (event.key != Key::enter || trim(txtNewFolder.text()).empty()) return;
    event.handled = true;
    makeFolder();
  };
  cmdOK.onClick = [this] {
    selectedFolder_ = FolderTreeview1.selected();
    chosen_ = !selectedFolder_.empty();
    close();
  };
  cmdCancel.onClick = [this] { close(); };
}

bool frmBrowseDlg::Browse() {
  selectedFolder_.clear();
  chosen_ = false;
  showModal();
  return chosen_;
}

std::string frmBrowseDlg::FolderString() const {
  return std::string(lastName(withoutTrailingSeparator(selectedFolder_)));
}

void frmBrowseDlg::onLoad() {
  lblPrompt1.setCaption(Prompt1);
  lblPrompt2.setVisible(ShowPrompt2);
  FolderTreeview1.setRoot(RootFolder);
  FolderTreeview1.select(existingPart(FolderTreeview1, RootFolder, PreSelectedFolder));
  BrowseDlg_SelectionChanged();
  FolderTreeview1.setFocus();
}

void frmBrowseDlg::BrowseDlg_SelectionChanged() {
  Prompt2 = FolderTreeview1.selected();
  lblPrompt2.setCaption(Prompt2);
}

void frmBrowseDlg::makeFolder() {
  const std::string name(trim(txtNewFolder.text()));
  if (name.empty()) return txtNewFolder.setFocus();
  const std::string folder = childOf(FolderTreeview1.selected(), name);
  const bool isName = name.find_first_of("/\\") == std::string::npos && name != "." && name != "..";
  if (!isName || !maker_(folder)) {
    toolkit().messageBox({caption(),
                          isName ? "The folder can't be created:\r\n" + folder
                                 : "\"" + name + "\" is no name for a folder.",
                          MessageButtons::ok, MessageIcon::exclamation});
    return;
  }
  txtNewFolder.setText("");
  FolderTreeview1.refresh();
  FolderTreeview1.select(folder);
  BrowseDlg_SelectionChanged();
  FolderTreeview1.setFocus();
}

Layout frmBrowseDlg::layout() {
  return column({item(lblPrompt1), item(lblPrompt2), item(FolderTreeview1).sized(50, 16).growing(),
                 row({item(lblNewFolder), item(txtNewFolder).growing(), item(cmdNewFolder)}),
                 row({space(), item(cmdOK), item(cmdCancel)})});
}

std::string browseForFolder(Toolkit& toolkit, FolderTree::Lister lister, frmBrowseDlg::Maker maker,
                            const std::string& prompt, const std::string& start) {
  frmBrowseDlg dialog(toolkit, std::move(lister), std::move(maker));
  dialog.Prompt1 = prompt;
  dialog.PreSelectedFolder = start;
  dialog.ShowPrompt2 = true;
  return dialog.Browse() ? dialog.SelectedFolder() : "";
}

}  // namespace tamrikon
