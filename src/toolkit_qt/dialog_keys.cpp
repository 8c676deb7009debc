#include "toolkit_qt/dialog_keys.h"

#include <QAbstractButton>

#include "toolkit/dialog.h"
#include "toolkit/grid.h"
#include "toolkit/text_controls.h"
#include "toolkit_qt/container_peers.h"

namespace tamrikon {
namespace {

Key keyOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Escape: return Key::escape;
    case Qt::Key_Return:
    case Qt::Key_Enter: return Key::enter;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return Key::tab;
    case Qt::Key_Up: return Key::up;
    case Qt::Key_Down: return Key::down;
    case Qt::Key_Left: return Key::left;
    case Qt::Key_Right: return Key::right;
    case Qt::Key_Home: return Key::home;
    case Qt::Key_End: return Key::end;
    case Qt::Key_F1: return Key::f1;
    case Qt::Key_Delete: return Key::del;
    default: return Key::other;
  }
}

bool isModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
         key == Qt::Key_AltGr || key == Qt::Key_Meta || key == Qt::Key_CapsLock ||
         key == Qt::Key_NumLock;
}

void click(QWidget& button) {
  static_cast<QAbstractButton&>(button).click();
}

}  // namespace

bool DialogKeys::press(const QKeyEvent& event) {
  // Alt+Down isn't Down: keys with Alt belong to widgets and accelerators.
  if (isModifier(event.key()) || event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) {
    return false;
  }
  KeyEvent key;
  key.key = keyOf(event);
  key.control = event.modifiers() & Qt::ControlModifier;
  key.shift = event.modifiers() & Qt::ShiftModifier;
  if (tell(key)) return true;
  switch (key.key) {
    case Key::escape: pressButton(ButtonRole::cancel); return true;
    case Key::enter: return enter();
    case Key::tab: return key.control && turnPage(key.shift ? -1 : 1);
    default: return false;
  }
}

bool DialogKeys::tell(KeyEvent& key) {
  gate_.run([&] {
    dialog_.onKeyDown(key);
    Control* focused = gate_.focused();
    if (!key.handled && gate_.isOpen() && focused != nullptr) focused->userPressedKey(key);
  });
  return key.handled || !gate_.isOpen();
}

bool DialogKeys::enter() {
  Control* focused = gate_.focused();
  if (const auto* button = dynamic_cast<const CommandButton*>(focused)) {
    click(peers_.of(*button)->widget());
    return true;
  }
  if (const auto* box = dynamic_cast<const TextBox*>(focused)) {
    if (box->isMultiLine() && !box->isReadOnly()) return false;
  }
  if (const auto* grid = dynamic_cast<const Grid*>(focused)) {
    if (grid->rowCount() > 0) return false;
  }
  pressButton(ButtonRole::default_);
  return true;
}

void DialogKeys::pressButton(ButtonRole role) {
  for (const Control* control : dialog_.controls()) {
    const auto* button = dynamic_cast<const CommandButton*>(control);
    if (button == nullptr || button->role() != role) continue;
    const Peer* peer = peers_.of(*button);
    if (peer != nullptr && peer->isReachable()) return click(peer->widget());
  }
}

bool DialogKeys::turnPage(int steps) {
  for (const Control* control : dialog_.controls()) {
    if (dynamic_cast<const TabStrip*>(control) == nullptr) continue;
    Peer* peer = peers_.of(*control);
    if (peer == nullptr || !peer->isReachable()) continue;
    static_cast<TabStripPeer&>(*peer).turn(steps);
    return true;
  }
  return false;
}

}  // namespace tamrikon
