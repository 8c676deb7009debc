// The peers of one dialog that is shown.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "toolkit_qt/peer.h"

namespace tamrikon {

class PeerSet {
 public:
  template <typename P>
  P& add(std::unique_ptr<P> peer) {
    P& added = *peer;
    ofControls_[&added.control()] = &added;
    ofWidgets_[&added.widget()] = &added;
    peers_.push_back(std::move(peer));
    return added;
  }

  /// Null for a control that the layout leaves out.
  Peer* of(const Control& control) const {
    const auto found = ofControls_.find(&control);
    return found == ofControls_.end() ? nullptr : found->second;
  }

  /// The control that the widget is, or is a part of; null for none.
  Control* controlAt(const QWidget* widget) const {
    for (; widget != nullptr; widget = widget->parentWidget()) {
      const auto found = ofWidgets_.find(widget);
      if (found != ofWidgets_.end()) return &found->second->control();
    }
    return nullptr;
  }

  /// In the order of the layout.
  const std::vector<std::unique_ptr<Peer>>& all() const { return peers_; }

 private:
  std::vector<std::unique_ptr<Peer>> peers_;
  std::unordered_map<const Control*, Peer*> ofControls_;
  std::unordered_map<const QWidget*, Peer*> ofWidgets_;
};

}  // namespace tamrikon
