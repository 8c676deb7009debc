// What keys do in a dialog, whichever control has the focus.
#pragma once

#include <QKeyEvent>

#include "toolkit/buttons.h"
#include "toolkit_qt/event_gate.h"
#include "toolkit_qt/peer_set.h"

namespace tamrikon {

/// Tells the dialog and the control with the focus of each key. What they leave presses the default
/// button (Enter) or the cancel button (Esc), or turns to another page (Ctrl+Tab).
class DialogKeys {
 public:
  DialogKeys(Dialog& dialog, EventGate& gate, const PeerSet& peers)
      : dialog_(dialog), gate_(gate), peers_(peers) {}

  /// Whether the key has been dealt with, so that the widget isn't to get it.
  bool press(const QKeyEvent& event);

 private:
  bool tell(KeyEvent& key);
  bool enter();
  bool turnPage(int steps);

  /// Presses the button of that role, if it can be reached.
  void pressButton(ButtonRole role);

  Dialog& dialog_;
  EventGate& gate_;
  const PeerSet& peers_;
};

}  // namespace tamrikon
