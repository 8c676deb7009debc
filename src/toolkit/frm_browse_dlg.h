// The folder chooser.
#pragma once

#include <functional>
#include <string>

#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/folder_tree.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class frmBrowseDlg final : public Dialog {
 public:
  /// Makes a folder; false if that fails.
  using Maker = std::function<bool(const std::string& folder)>;

  frmBrowseDlg(Toolkit& toolkit, FolderTree::Lister lister, Maker maker);

  // What the caller sets. The folders are full paths.
  std::string Prompt1;
  std::string Prompt2;  // shown while ShowPrompt2 is set; follows the selection
  bool ShowPrompt2 = false;
  std::string RootFolder = "/";   // the top of the tree
  std::string PreSelectedFolder;  // or the nearest folder above it that is there

  /// Runs the dialog. Whether a folder was chosen.
  bool Browse();

  /// The folder that was chosen, and its name alone.
  const std::string& SelectedFolder() const { return selectedFolder_; }
  std::string FolderString() const;

  Label lblPrompt1{*this, "lblPrompt1"};
  Label lblPrompt2{*this, "lblPrompt2"};
  FolderTree FolderTreeview1;
  Label lblNewFolder{*this, "lblNewFolder", "New folder in it:"};
  TextBox txtNewFolder{*this, "txtNewFolder"};
  CommandButton cmdNewFolder{*this, "cmdNewFolder", "Create"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

 private:
  Layout layout() override;
  void onLoad() override;
  void BrowseDlg_SelectionChanged();
  void makeFolder();

  Maker maker_;
  std::string selectedFolder_;
  bool chosen_ = false;
};

/// Runs the folder chooser over the whole tree; empty if it was cancelled.
std::string browseForFolder(Toolkit& toolkit, FolderTree::Lister lister, frmBrowseDlg::Maker maker,
                            const std::string& prompt, const std::string& start);

}  // namespace tamrikon
