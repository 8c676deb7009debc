// Buttons, check boxes and option buttons.
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <memory>
#include <utility>
#include <vector>

#include "toolkit/buttons.h"
#include "toolkit_qt/peer.h"

namespace tamrikon {

/// A button that is as wide as the others of its dialog.
class PushButton final : public QPushButton {
 public:
  using Group = std::vector<const PushButton*>;

  using QPushButton::QPushButton;

  void standIn(std::shared_ptr<const Group> group) { group_ = std::move(group); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  /// A button such as "..." stays small.
  bool hasWords() const;
  QSize ownSize() const;

  std::shared_ptr<const Group> group_;
};

class CommandButtonPeer final : public Peer {
 public:
  using ControlType = CommandButton;

  CommandButtonPeer(PeerContext context, CommandButton& button, QWidget* parent);

  PushButton& button() const { return *widget_; }

 protected:
  void update() override;

 private:
  CommandButton& button_;
  PushButton* widget_;
  bool isDefault_ = false;
};

class CheckBoxPeer final : public Peer {
 public:
  using ControlType = CheckBox;

  CheckBoxPeer(PeerContext context, CheckBox& box, QWidget* parent);

 protected:
  void update() override;

 private:
  CheckBox& box_;
  QCheckBox* widget_;
};

class OptionButtonPeer final : public Peer {
 public:
  using ControlType = OptionButton;

  OptionButtonPeer(PeerContext context, OptionButton& option, QWidget* parent);

  /// The widgets' side of the control's group.
  void joinGroup(QButtonGroup& group) { group.addButton(widget_); }

 protected:
  void update() override;

 private:
  OptionButton& option_;
  QRadioButton* widget_;
};

}  // namespace tamrikon
