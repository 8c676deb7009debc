// Text boxes of one line and of several.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>
#include <memory>
#include <string>

#include "toolkit/grid.h"
#include "toolkit/text_controls.h"
#include "toolkit_qt/peer.h"
#include "toolkit_qt/room.h"

namespace tamrikon {

class TextBoxPeer : public Peer {
 public:
  TextBoxPeer(PeerContext context, TextBox& box, QWidget& widget)
      : Peer(context, box, widget), box_(box) {}

  TextBox& box() const { return box_; }

  /// The box is laid over cells of `grid`, whose widget is `table`, and is seen while it is opened.
  void setInPlace(const Grid& grid, QWidget& table);

  /// A key that was typed before the box had the focus.
  void type(QKeyEvent& event);

 protected:
  bool isToBeSeen() const override;
  void update() override;

  virtual void showText(const std::string& text) = 0;
  virtual void showReadOnly(bool readOnly) = 0;

  /// The user has changed the text.
  void edited(const QString& text);

  void showFont();

  /// What the widget shows, as the control has it.
  const std::string& shown() const { return shown_; }

  /// Whether `text` is all that the widget lacks. If so, it counts as shown from now on.
  bool isNextAdded(const std::string& text);

 private:
  TextBox& box_;
  const Grid* grid_ = nullptr;
  QWidget* table_ = nullptr;
  bool hasFixedFont_ = false;
  std::string shown_;
};

class LineBoxPeer final : public TextBoxPeer {
 public:
  LineBoxPeer(PeerContext context, TextBox& box, QWidget* parent);

  void askForRoom(int characters, int lines) override;
  void selectAll() override { widget_->selectAll(); }

 protected:
  void showText(const std::string& text) override;
  void showReadOnly(bool readOnly) override { widget_->setReadOnly(readOnly); }

 private:
  QLineEdit* widget_;
};

class LinesBoxPeer final : public TextBoxPeer {
 public:
  LinesBoxPeer(PeerContext context, TextBox& box, QWidget* parent);

  void askForRoom(int characters, int lines) override;
  void selectAll() override;
  void textAppended(const std::string& text) override;

 protected:
  void showText(const std::string& text) override;
  void showReadOnly(bool readOnly) override;

 private:
  void showAdded();

  Sized<QPlainTextEdit>* widget_;
  QString added_;  // what was appended since events ran last
  QTimer showSoon_;
};

/// The peer for the kind of box that it is now. A box that is shown doesn't change its kind.
std::unique_ptr<TextBoxPeer> makeTextBoxPeer(PeerContext context, TextBox& box, QWidget* parent);

}  // namespace tamrikon
