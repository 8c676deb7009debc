#include "toolkit_qt/dialog_window.h"

#include <QCloseEvent>
#include <QLayout>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "toolkit_qt/layout_builder.h"
#include "toolkit_qt/layout_traits.h"
#include "toolkit_qt/qt_text.h"
#include "toolkit_qt/title_room.h"

namespace tamrikon {
namespace {

/// How long a window waits to be painted before it goes to work all the same: it may be behind
/// others, or minimised. In milliseconds.
constexpr int kUnpainted = 300;

/// No box that minimises: the windows below couldn't be used then.
constexpr Qt::WindowFlags kFrame = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

}  // namespace

DialogWindow::DialogWindow(Dialog& dialog, QWidget* owner, std::function<void()> onClosed)
    : QDialog(owner, Qt::Dialog | kFrame),
      dialog_(dialog),
      onClosed_(std::move(onClosed)),
      gate_(dialog, [this] { return peers_.controlAt(focusWidget()); }),
      marks_([this](const Control& control) { peers_.of(control)->changed(); }),
      keys_(dialog, gate_, peers_) {
  setObjectName(toQt(dialog.name()));
  setWindowModality(Qt::ApplicationModal);
  activateSoon_.setSingleShot(true);
  connect(&activateSoon_, &QTimer::timeout, this, [this] { activate(); });
  captionChanged();
  const EventGate::Quiet building(gate_);
  PeerFactory factory({gate_, marks_}, peers_, *this);
  LayoutBuilder(factory, *this).fill(*this, withSpinPairs(dialog.layout()));
  factory.finish();
  for (QWidget* widget : findChildren<QWidget*>()) widget->installEventFilter(this);
  installEventFilter(this);
  focusFirst();
  dialog_.attach(this);
}

DialogWindow::~DialogWindow() {
  gate_.shut();
  dialog_.attach(nullptr);
  // Widgets have things to tell while they go: that must find its peers.
  const EventGate::Quiet leaving(gate_);
  qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
  if (onClosed_) onClosed_();
}

QSize DialogWindow::sizeHint() const {
  QSize size = QDialog::sizeHint();
  size.setWidth(std::max(size.width(), widthForTitle(windowTitle())));
  if (layout()->hasHeightForWidth()) size.setHeight(layout()->totalHeightForWidth(size.width()));
  return size.boundedTo(roomOnScreen(this));
}

void DialogWindow::captionChanged() {
  setWindowTitle(toQt(dialog_.caption()));
}

void DialogWindow::closed() {
  gate_.shut();
  hide();
  if (const auto tell = std::exchange(onClosed_, nullptr)) tell();
}

void DialogWindow::focusFirst() {
  for (const auto& peer : peers_.all()) {
    const bool isTabStrip = dynamic_cast<const TabStrip*>(&peer->control()) != nullptr;
    if (isTabStrip || !(peer->focusTarget().focusPolicy() & Qt::TabFocus)) continue;
    if (!peer->isReachable()) continue;
    return peer->focusTarget().setFocus(Qt::TabFocusReason);
  }
}

void DialogWindow::centre() {
  const QWidget* owner = parentWidget();
  if (owner == nullptr || !owner->window()->isVisible() || owner->window()->isMinimized()) return;
  QRect place(QPoint(), size());
  place.moveCenter(owner->window()->frameGeometry().center());
  const QRect screen = owner->screen()->availableGeometry();
  place.moveRight(std::min(place.right(), screen.right()));
  place.moveBottom(std::min(place.bottom(), screen.bottom()));
  place.moveLeft(std::max(place.left(), screen.left()));
  place.moveTop(std::max(place.top(), screen.top()));
  move(place.topLeft());
}

void DialogWindow::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) centre();  // Qt puts it somewhere near
  QDialog::showEvent(event);
  if (!isActivated_) activateSoon_.start(kUnpainted);
}

void DialogWindow::paintEvent(QPaintEvent* event) {
  QDialog::paintEvent(event);
  // When all that the window holds has been painted, too.
  if (!isActivated_) activateSoon_.start(0);
}

void DialogWindow::activate() {
  if (!dialog_.isShown() || std::exchange(isActivated_, true)) return;
  gate_.open();
  gate_.run([this] { dialog_.onActivate(); });
  if (gate_.focused() == nullptr) gate_.focusChanged();
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  bool isGranted = false;
  gate_.run([this, &isGranted] {
    isGranted = dialog_.onQueryClose();
    if (isGranted) dialog_.close();
  });
  // An application that quits asks its windows in this way.
  if (isGranted) event->accept();
}

bool DialogWindow::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress: {
      // Where the key arrives first: from there it may go up to the window.
      const QObject* target = focusWidget() != nullptr ? focusWidget() : this;
      return watched == target && keys_.press(static_cast<const QKeyEvent&>(*event));
    }
    case QEvent::FocusIn: gate_.focusChanged(); return false;
    case QEvent::FocusOut:
      // Another control tells of its own, and another window leaves the focus where it is.
      if (focusWidget() == nullptr) gate_.focusChanged();
      return false;
    case QEvent::ChildAdded:  // such as the line edit of a box that becomes editable
      static_cast<const QChildEvent&>(*event).child()->installEventFilter(this);
      return false;
    default: return QDialog::eventFilter(watched, event);
  }
}

}  // namespace tamrikon
