// A tree of folders, of which one is selected.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/control.h"

namespace tamrikon {

class FolderTree final : public Control {
 public:
  /// Gives the names of the folders in a folder, sorted; none for one that can't be read.
  using Lister = std::function<std::vector<std::string>(const std::string& folder)>;

  FolderTree(Dialog& dialog, std::string name, Lister lister)
      : Control(dialog, std::move(name)), lister_(std::move(lister)) {}

  /// The folder at the top of the tree.
  const std::string& root() const { return root_; }
  void setRoot(const std::string& root) { set(root_, root); }

  /// A path below the root, with "/" between its names; empty if nothing is selected.
  const std::string& selected() const { return selected_; }
  void select(const std::string& path) { set(selected_, path); }

  /// Folders have come or gone: the tree is read again.
  void refresh() {
    ++readings_;
    changed();
  }
  int readings() const { return readings_; }

  std::vector<std::string> subfolders(const std::string& path) const { return lister_(path); }

  std::function<void()> onSelectionChanged;

  // For renderers.
  void userSelected(const std::string& path) {
    if (selected_ == path) return;
    selected_ = path;
    call(onSelectionChanged);
  }

 private:
  Lister lister_;
  std::string root_;
  std::string selected_;
  int readings_ = 1;
};

}  // namespace tamrikon
