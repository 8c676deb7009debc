#include "toolkit_qt/value_peers.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdint>

#include "toolkit_qt/event_gate.h"
#include "toolkit_qt/qt_text.h"

namespace tamrikon {
namespace {

constexpr int kTicks = 10000;  // of a progress bar, whose own numbers are small

}  // namespace

SpinControlPeer::SpinControlPeer(PeerContext context, SpinControl& spin, QWidget* parent)
    : Peer(context, spin, *new QWidget(parent)), spin_(spin) {
  auto* column = new QVBoxLayout(&widget());
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  // The buttons leave the focus to the widget that holds them.
  widget().setFocusPolicy(Qt::ClickFocus);
  widget().setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  addArrow(Qt::UpArrow, 1);
  addArrow(Qt::DownArrow, -1);
  widget().installEventFilter(this);
}

void SpinControlPeer::addArrow(Qt::ArrowType type, int steps) {
  auto* arrow = new QToolButton(&widget());
  arrow->setObjectName(toQt(spin_.name() + (steps > 0 ? ".up" : ".down")));
  arrow->setAccessibleName(steps > 0 ? QStringLiteral("More") : QStringLiteral("Less"));
  arrow->setArrowType(type);
  arrow->setAutoRepeat(true);
  arrow->setFocusPolicy(Qt::NoFocus);
  const int height = QLineEdit(&widget()).sizeHint().height();
  arrow->setFixedSize(height * 3 / 4, type == Qt::UpArrow ? (height + 1) / 2 : height / 2);
  widget().layout()->addWidget(arrow);
  connect(arrow, &QToolButton::clicked, this,
          [this, steps] { tell([this, steps] { spin_.userStepped(steps); }); });
}

bool SpinControlPeer::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !isReachable()) return Peer::eventFilter(watched, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const int steps = key.key() == Qt::Key_Up ? 1 : key.key() == Qt::Key_Down ? -1 : 0;
  if (steps == 0 || (key.modifiers() & ~Qt::KeypadModifier) != 0) return false;
  context().gate.run([this, steps] { spin_.userStepped(steps); });
  return true;
}

ProgressIndicatorPeer::ProgressIndicatorPeer(PeerContext context, ProgressIndicator& indicator,
                                             QWidget* parent)
    : Peer(context, indicator, *new QProgressBar(parent)),
      indicator_(indicator),
      widget_(static_cast<QProgressBar*>(&widget())) {}

void ProgressIndicatorPeer::update() {
  Peer::update();
  const bool isBusy = indicator_.isRunning() && indicator_.all() == 0;
  widget_->setTextVisible(!isBusy && indicator_.all() > 0);
  if (isBusy) return widget_->setRange(0, 0);
  widget_->setRange(0, kTicks);
  const auto done = static_cast<double>(std::min(indicator_.done(), indicator_.all()));
  const auto all = static_cast<double>(indicator_.all());
  widget_->setValue(indicator_.all() == 0 ? 0 : static_cast<int>(kTicks * done / all));
}

}  // namespace tamrikon
