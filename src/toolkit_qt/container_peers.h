// Frames and tab strips. What they hold is built into them by the layout.
#pragma once

#include <QGroupBox>
#include <QTabBar>
#include <QTabWidget>

#include "toolkit/containers.h"
#include "toolkit_qt/peer.h"

namespace tamrikon {

class FramePeer final : public Peer {
 public:
  FramePeer(PeerContext context, Frame& frame, QWidget* parent);

 protected:
  void update() override;

 private:
  QGroupBox* widget_;
};

class TabStripPeer final : public Peer {
 public:
  TabStripPeer(PeerContext context, TabStrip& strip, QWidget* parent);

  QWidget& focusTarget() const override { return *widget_->tabBar(); }

  /// The page of the next tab.
  QWidget* addPage();

  /// Moves by `steps` tabs, round the ends.
  void turn(int steps);

 protected:
  void update() override;

 private:
  TabStrip& strip_;
  QTabWidget* widget_;
};

}  // namespace tamrikon
