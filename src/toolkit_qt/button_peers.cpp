#include "toolkit_qt/button_peers.h"

#include <algorithm>
#include <utility>

#include "toolkit_qt/caption_marks.h"
#include "toolkit_qt/room.h"

namespace tamrikon {
namespace {

constexpr int kCaption = 8;  // characters that every button of words has room for

template <typename Button>
void showCaption(Button& button, const QString& caption) {
  if (button.text() != caption) button.setText(caption);
}

}  // namespace

bool PushButton::hasWords() const {
  const QString caption = text();
  return std::any_of(caption.begin(), caption.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

QSize PushButton::ownSize() const {
  QSize size = QPushButton::sizeHint();
  const int padding = 2 * widthOf(*this, 2);
  const int caption = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
  if (!hasWords()) {
    size.setWidth(std::max(caption + padding, size.height()));
  } else {
    size.setWidth(std::max({size.width(), widthOf(*this, kCaption) + padding, caption + padding}));
  }
  return size;
}

QSize PushButton::sizeHint() const {
  QSize size = ownSize();
  if (!group_ || !hasWords()) return size;
  // One long caption isn't to make all of them long.
  const int widest = 2 * (widthOf(*this, kCaption) + 2 * widthOf(*this, 2));
  if (size.width() > widest) return size;
  for (const PushButton* button : *group_) {
    if (button->isHidden() || !button->hasWords()) continue;
    const int width = button->ownSize().width();
    if (width <= widest) size.setWidth(std::max(size.width(), width));
  }
  return size;
}

CommandButtonPeer::CommandButtonPeer(PeerContext context, CommandButton& button, QWidget* parent)
    : Peer(context, button, *new PushButton(parent)),
      button_(button),
      widget_(static_cast<PushButton*>(&widget())) {
  widget_->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  connect(widget_, &QPushButton::clicked, this,
          [this] { tell([this] { button_.userClicked(); }); });
}

void CommandButtonPeer::update() {
  Peer::update();
  showCaption(*widget_, context().marks.captionOf(button_));
  // Not each time: Qt moves the look of the default button to the one that has the focus.
  const bool isDefault = button_.role() == ButtonRole::default_;
  if (std::exchange(isDefault_, isDefault) != isDefault) widget_->setDefault(isDefault);
}

CheckBoxPeer::CheckBoxPeer(PeerContext context, CheckBox& box, QWidget* parent)
    : Peer(context, box, *new QCheckBox(parent)),
      box_(box),
      widget_(static_cast<QCheckBox*>(&widget())) {
  connect(widget_, &QCheckBox::clicked, this,
          [this](bool checked) { tell([this, checked] { box_.userToggled(checked); }); });
}

void CheckBoxPeer::update() {
  Peer::update();
  showCaption(*widget_, context().marks.captionOf(box_));
  widget_->setChecked(box_.isChecked());
}

OptionButtonPeer::OptionButtonPeer(PeerContext context, OptionButton& option, QWidget* parent)
    : Peer(context, option, *new QRadioButton(parent)),
      option_(option),
      widget_(static_cast<QRadioButton*>(&widget())) {
  // The group does that, whatever the parents are.
  widget_->setAutoExclusive(false);
  connect(widget_, &QRadioButton::clicked, this, [this] {
    if (!option_.isSelected()) tell([this] { option_.userSelected(); });
  });
}

void OptionButtonPeer::update() {
  Peer::update();
  showCaption(*widget_, context().marks.captionOf(option_));
  widget_->setChecked(option_.isSelected());
}

}  // namespace tamrikon
