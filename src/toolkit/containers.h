// Controls that hold others; which ones is said by the dialog's layout.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/control.h"

namespace tamrikon {

/// A box with the caption as its title. A disabled frame disables what it holds.
class Frame final : public Control {
 public:
  using Control::Control;
};

struct Tab {
  std::string key;
  std::string caption;
  std::string toolTip;
};

/// Tabs, of which one is selected and shows its page. Ctrl+Tab moves to the next one, and from the
/// last to the first; renderers see to that.
class TabStrip final : public Control {
 public:
  TabStrip(Dialog& dialog, std::string name, std::vector<Tab> tabs)
      : Control(dialog, std::move(name)), tabs_(std::move(tabs)) {}

  const std::vector<Tab>& tabs() const { return tabs_; }

  /// From 0.
  int selected() const { return selected_; }
  void select(int index) { set(selected_, index); }

  /// A key that no tab has changes nothing.
  void select(const std::string& key) {
    for (std::size_t i = 0; i < tabs_.size(); ++i) {
      if (tabs_[i].key == key) select(static_cast<int>(i));
    }
  }

  std::function<void()> onClick;

  // For renderers.
  void userSelected(int index) {
    if (index == selected_) return;
    selected_ = index;
    changed();
    call(onClick);
  }
  void userNextTab() { userSelected((selected_ + 1) % static_cast<int>(tabs_.size())); }

 private:
  std::vector<Tab> tabs_;
  int selected_ = 0;
};

}  // namespace tamrikon
