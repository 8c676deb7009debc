#include "workbench/renderer/dialog_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QTimer>
#include <utility>

#include "workbench/renderer/layout_builder.h"
#include "workbench/renderer/layout_traits.h"
#include "workbench/renderer/qt_text.h"

namespace tamrikon {
namespace {

/// How long a window waits to be painted before it goes to work all the same: it may be behind
/// others, or minimised. In milliseconds.
constexpr int kUnpainted = 300;

}  // namespace

DialogWindow::DialogWindow(Dialog& dialog, QWidget* owner, std::function<void()> onClosed)
    : QDialog(owner),
      dialog_(dialog),
      onClosed_(std::move(onClosed)),
      gate_(dialog, [this] { return peers_.controlAt(focusWidget()); }),
      marks_([this](const Control& control) { peers_.of(control)->changed(); }),
      keys_(dialog, gate_, peers_) {
  setObjectName(toQt(dialog.name()));
  setWindowModality(Qt::ApplicationModal);
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

void DialogWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  activateSoon(kUnpainted);
}

void DialogWindow::paintEvent(QPaintEvent* event) {
  QDialog::paintEvent(event);
  activateSoon(0);  // when all that the window holds has been painted, too
}

void DialogWindow::activateSoon(int milliseconds) {
  if (!isActivated_) QTimer::singleShot(milliseconds, this, [this] { activate(); });
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
    default: return QDialog::eventFilter(watched, event);
  }
}

}  // namespace tamrikon
