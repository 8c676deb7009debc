#include "toolkit_qt/event_gate.h"

#include <utility>

#include "toolkit/control.h"
#include "toolkit/dialog.h"

namespace tamrikon {

EventGate::EventGate(Dialog& dialog, std::function<Control*()> focusedWidgets)
    : dialog_(dialog), focusedWidgets_(std::move(focusedWidgets)) {
  settleSoon_.setSingleShot(true);
  connect(&settleSoon_, &QTimer::timeout, this, [this] { settleFocus(); });
}

void EventGate::run(const std::function<void()>& event) {
  if (!open_) return;
  ++running_;
  try {
    event();
  } catch (...) {
    if (!failure_) failure_ = std::current_exception();
    dialog_.close();
  }
  if (running_ == 1) settleFocus();
  --running_;
}

void EventGate::moveFocus(Control* control) {
  if (!open_ || focused_ == control) return;
  run([this, control] {
    Control* left = std::exchange(focused_, control);
    if (left != nullptr) left->userLostFocus();
    // The handler may have moved the focus on.
    if (open_ && control != nullptr && focused_ == control) control->userGotFocus();
  });
}

void EventGate::focusChanged() {
  if (!isQuiet()) return moveFocus(focusedWidgets_());
  unsettled_ = true;
  if (running_ == 0) settleSoon_.start();
}

void EventGate::settleFocus() {
  // A handler of the move may cause the next one.
  while (open_ && std::exchange(unsettled_, false)) moveFocus(focusedWidgets_());
}

}  // namespace tamrikon
