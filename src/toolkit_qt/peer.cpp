#include "toolkit_qt/peer.h"

#include "toolkit_qt/event_gate.h"
#include "toolkit_qt/qt_text.h"
#include "toolkit_qt/room.h"

namespace tamrikon {

Peer::Peer(PeerContext context, Control& control, QWidget& widget)
    : context_(context), control_(control), widget_(widget) {
  widget_.setObjectName(toQt(control_.name()));
  control_.attach(this);
}

bool Peer::isReachable() const {
  const QWidget& target = focusTarget();
  return target.isEnabled() && target.isVisibleTo(target.window());
}

void Peer::askForRoom(int characters, int lines) {
  if (characters > 0) widget_.setMinimumWidth(widthOf(widget_, characters));
  if (lines > 0) widget_.setMinimumHeight(heightOf(widget_, lines));
}

void Peer::changed() {
  const EventGate::Quiet quiet(context_.gate);
  update();
}

void Peer::update() {
  widget_.setEnabled(control_.isEnabled());
  if (widget_.isHidden() == isToBeSeen()) widget_.setVisible(isToBeSeen());
  if (shownToolTip_ != control_.toolTip()) {
    shownToolTip_ = control_.toolTip();
    widget_.setToolTip(toolTipToQt(shownToolTip_));
  }
  if (!labelled_) {
    const bool hasCaption = !control_.caption().empty();
    focusTarget().setAccessibleName(toQt(hasCaption ? control_.caption() : control_.toolTip()));
  }
}

void Peer::takeFocus() {
  if (!isReachable()) return;
  focusTarget().setFocus(Qt::OtherFocusReason);
  // While another window is in front, Qt tells nothing.
  if (context_.gate.focused() != &control_) context_.gate.moveFocus(&control_);
}

void Peer::tell(const std::function<void()>& event) {
  if (context_.gate.isQuiet()) return;
  if (!context_.gate.isOpen()) return changed();  // too early or too late: as if nothing was done
  takeFocus();
  context_.gate.run(event);
}

}  // namespace tamrikon
