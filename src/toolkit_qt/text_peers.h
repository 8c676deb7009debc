// Labels and status bars.
#pragma once

#include <QFrame>
#include <QLabel>
#include <vector>

#include "toolkit/text_controls.h"
#include "toolkit_qt/peer.h"

namespace tamrikon {

/// The font for text whose characters stand in columns.
QFont fixedFont();

/// Text that breaks its lines where it would get too wide, so that a long one doesn't blow up the
/// dialog.
class CaptionLabel final : public QLabel {
 public:
  using QLabel::QLabel;

  /// At least that wide, and not wider; 0 for the width of the text, up to a sensible one.
  void setRoom(int characters, int lines);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  void showText(const QString& text);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void breakLines();

  int characters_ = 0;
  int lines_ = 0;
  QSize hint_;
};

class LabelPeer final : public Peer {
 public:
  using ControlType = Label;

  LabelPeer(PeerContext context, Label& label, QWidget* parent);

  void askForRoom(int characters, int lines) override { widget_->setRoom(characters, lines); }

  /// The label's accelerator leads to `box`, and its text names it.
  void setBuddy(Peer& box);

 protected:
  void update() override;

 private:
  Label& label_;
  CaptionLabel* widget_;
  bool hasFixedFont_ = false;
  bool isHeading_ = false;
};

class StatusBarPeer final : public Peer {
 public:
  using ControlType = StatusBar;

  StatusBarPeer(PeerContext context, StatusBar& bar, QWidget* parent);

 protected:
  void update() override;

 private:
  StatusBar& bar_;
  std::vector<QLabel*> panels_;
};

}  // namespace tamrikon
