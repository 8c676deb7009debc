#include "toolkit_qt/container_peers.h"

#include <QScrollArea>

#include "toolkit_qt/qt_text.h"
#include "toolkit_qt/room.h"

namespace tamrikon {
namespace {

/// Shows a page of a tab, which can be scrolled where the screen is too small for it.
class ScrollPage final : public QScrollArea {
 public:
  explicit ScrollPage(QWidget* page) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(page);
    // The background is that of the tabs.
    page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
  }

  QSize sizeHint() const override { return widget()->sizeHint(); }
  QSize minimumSizeHint() const override { return leastRoom(*this, sizeHint()); }
};

}  // namespace

FramePeer::FramePeer(PeerContext context, Frame& frame, QWidget* parent)
    : Peer(context, frame, *new QGroupBox(parent)), widget_(static_cast<QGroupBox*>(&widget())) {}

void FramePeer::update() {
  Peer::update();
  const QString title = literalCaption(control().caption());
  if (widget_->title() != title) widget_->setTitle(title);
}

TabStripPeer::TabStripPeer(PeerContext context, TabStrip& strip, QWidget* parent)
    : Peer(context, strip, *new QTabWidget(parent)),
      strip_(strip),
      widget_(static_cast<QTabWidget*>(&widget())) {
  // A tab that is clicked takes the focus, so that the box that was left is told before its page
  // goes.
  widget_->tabBar()->setFocusPolicy(Qt::StrongFocus);
  connect(widget_, &QTabWidget::currentChanged, this, [this](int index) {
    if (index >= 0 && index != strip_.selected()) {
      tell([this, index] { strip_.userSelected(index); });
    }
  });
}

QWidget* TabStripPeer::addPage() {
  const auto& tab = strip_.tabs()[static_cast<std::size_t>(widget_->count())];
  auto* page = new QWidget;
  const int index = widget_->addTab(new ScrollPage(page), literalCaption(tab.caption));
  widget_->setTabToolTip(index, toolTipToQt(tab.toolTip));
  return page;
}

void TabStripPeer::turn(int steps) {
  const auto count = static_cast<int>(strip_.tabs().size());
  const int next = (strip_.selected() + steps + count) % count;
  tell([this, next] { strip_.userSelected(next); });
}

void TabStripPeer::update() {
  Peer::update();
  widget_->setCurrentIndex(strip_.selected());
}

}  // namespace tamrikon
