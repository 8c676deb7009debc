// Spin arrows and progress bars.
#pragma once

#include <QProgressBar>

#include "toolkit/value_controls.h"
#include "toolkit_qt/peer.h"

namespace tamrikon {

/// Two arrows; the arrow keys in the box beside them do the same.
class SpinControlPeer final : public Peer {
 public:
  using ControlType = SpinControl;

  SpinControlPeer(PeerContext context, SpinControl& spin, QWidget* parent);

  /// The widget of the control's buddy.
  void setBuddy(QWidget& box) { box.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void addArrow(Qt::ArrowType type, int steps);

  SpinControl& spin_;
};

class ProgressIndicatorPeer final : public Peer {
 public:
  using ControlType = ProgressIndicator;

  ProgressIndicatorPeer(PeerContext context, ProgressIndicator& indicator, QWidget* parent);

 protected:
  void update() override;

 private:
  ProgressIndicator& indicator_;
  QProgressBar* widget_;
};

}  // namespace tamrikon
