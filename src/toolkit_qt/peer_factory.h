// Makes the peers of a dialog, and joins those that belong together.
#pragma once

#include <QButtonGroup>
#include <map>

#include "toolkit/layout.h"
#include "toolkit_qt/peer_set.h"

namespace tamrikon {

class FramePeer;
class OptionGroup;
class TabStripPeer;

class PeerFactory {
 public:
  PeerFactory(PeerContext context, PeerSet& peers, QWidget& window)
      : context_(context), peers_(peers), window_(window) {}

  /// For a part that is a control. Throws std::logic_error for a control of an unknown class.
  Peer& make(const Layout& part, QWidget* parent);
  FramePeer& makeFrame(Frame& frame, QWidget* parent);
  TabStripPeer& makeTabs(TabStrip& strip, QWidget* parent);

  /// What is made between these stands on a page of its own, whose accelerators may be those of
  /// other pages.
  int enterPage();
  void leavePage(int outer) { page_ = outer; }

  /// Lets the label name the first box of `part`, if there is one, and lead to it.
  void nameBox(Control& label, const Layout& part);

  /// When all are made: the order of the Tab key, and the state of the controls.
  void finish();

 private:
  template <typename P>
  Peer* makeIf(Control& control, QWidget* parent);
  template <typename... Peers>
  Peer& makeAny(Control& control, QWidget* parent);
  Peer& makePeer(Control& control, QWidget* parent);
  void addBoxes(const Layout& part, Peer& grid);
  void joinGroup(Control& control, Peer& peer);
  void orderTabs();

  PeerContext context_;
  PeerSet& peers_;
  QWidget& window_;
  std::map<const OptionGroup*, QButtonGroup*> groups_;
  int page_ = -1;  // of the caption marks
};

}  // namespace tamrikon
