#include "toolkit_qt/text_peers.h"

#include <QEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <algorithm>

#include "toolkit_qt/caption_marks.h"
#include "toolkit_qt/qt_text.h"
#include "toolkit_qt/room.h"

namespace tamrikon {
namespace {

constexpr int kWidestLabel = 64;  // characters
constexpr int kPanelWidth = 12;

/// Text that is cut where it doesn't fit; the tool tip shows it all.
class Panel final : public QLabel {
 public:
  using QLabel::QLabel;

  void showText(const QString& text) {
    if (text == text_) return;
    text_ = text;
    cut();
  }

  QSize minimumSizeHint() const override {
    return {widthOf(*this, kPanelWidth), QLabel::minimumSizeHint().height()};
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    cut();
  }

 private:
  void cut() {
    setIndent(widthOf(*this, 1) / 2);
    const int room = contentsRect().width() - 2 * indent();
    const QString shown = fontMetrics().elidedText(text_, Qt::ElideRight, room);
    setText(shown);
    setToolTip(shown == text_ ? QString() : toolTipToQt(fromQt(text_)));
  }

  QString text_;
};

}  // namespace

QFont fixedFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setFamilies({QStringLiteral("Courier New"), font.family()});
  font.setStyleHint(QFont::Monospace);
  return font;
}

void CaptionLabel::setRoom(int characters, int lines) {
  characters_ = characters;
  lines_ = lines;
  breakLines();
}

void CaptionLabel::showText(const QString& shown) {
  if (text() == shown && hint_.isValid()) return;
  setText(shown);
  breakLines();
}

void CaptionLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) breakLines();
}

QSize CaptionLabel::sizeHint() const {
  return hint_.isValid() ? hint_ : QLabel::sizeHint();
}

void CaptionLabel::breakLines() {
  const int widest = widthOf(*this, characters_ > 0 ? characters_ : kWidestLabel);
  setWordWrap(false);
  hint_ = QLabel::sizeHint();
  if (hint_.width() > widest) {
    setWordWrap(true);
    hint_ = {widest, heightForWidth(widest)};
  }
  hint_ = hint_.expandedTo({widthOf(*this, characters_), heightOf(*this, lines_)});
  updateGeometry();
}

LabelPeer::LabelPeer(PeerContext context, Label& label, QWidget* parent)
    : Peer(context, label, *new CaptionLabel(parent)),
      label_(label),
      widget_(static_cast<CaptionLabel*>(&widget())) {
  widget_->setTextFormat(Qt::PlainText);
}

void LabelPeer::setBuddy(Peer& box) {
  widget_->setBuddy(&box.focusTarget());
  box.setLabelled();
}

void LabelPeer::update() {
  Peer::update();
  if (hasFixedFont_ != label_.hasFixedFont() || isHeading_ != label_.isHeading()) {
    hasFixedFont_ = label_.hasFixedFont();
    isHeading_ = label_.isHeading();
    QFont font = hasFixedFont_ ? fixedFont() : QFont();
    if (isHeading_) font.setBold(true);
    widget_->setFont(font);
  }
  const QString plain = linesToQt(label_.caption());
  // Without a buddy, Qt takes "&" as it is.
  widget_->showText(widget_->buddy() ? context().marks.captionOf(label_) : plain);
  if (widget_->buddy()) widget_->buddy()->setAccessibleName(plain.simplified());
}

StatusBarPeer::StatusBarPeer(PeerContext context, StatusBar& bar, QWidget* parent)
    : Peer(context, bar, *new QWidget(parent)), bar_(bar) {
  widget().setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  auto* row = new QHBoxLayout(&widget());
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(row->spacing() / 2);
  for (int number = 1; number <= bar.panelCount(); ++number) {
    auto* panel = new Panel(&widget());
    panel->setObjectName(toQt(bar.name() + "." + std::to_string(number)));
    panel->setTextFormat(Qt::PlainText);
    panel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    row->addWidget(panel, number == 1 ? 3 : 1);
    panels_.push_back(panel);
  }
}

void StatusBarPeer::update() {
  Peer::update();
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    static_cast<Panel*>(panels_[i])->showText(linesToQt(bar_.panel(static_cast<int>(i) + 1)));
  }
}

}  // namespace tamrikon
