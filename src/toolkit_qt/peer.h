// What the peers of all kinds of controls have in common.
#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <string>

#include "toolkit/control.h"

namespace tamrikon {

class CaptionMarks;
class EventGate;

/// What a peer needs of the window that it is made for.
struct PeerContext {
  EventGate& gate;
  CaptionMarks& marks;
};

/// Brings a widget in line with its control, and tells the control what the user does to it.
/// The widget belongs to its parent widget and outlives the peer.
class Peer : public QObject, public ControlPeer {
 public:
  Peer(PeerContext context, Control& control, QWidget& widget);
  ~Peer() override { control_.attach(nullptr); }

  Control& control() const { return control_; }

  /// The outermost one.
  QWidget& widget() const { return widget_; }

  /// The one that takes the focus.
  virtual QWidget& focusTarget() const { return widget_; }

  /// Whether a user can get at the control as it is shown.
  bool isReachable() const;

  /// The least room, in characters and lines of text; 0 for what the widget needs by itself.
  virtual void askForRoom(int characters, int lines);

  /// The text of `label` names the widget for those who can't see it.
  void setLabelled() { labelled_ = true; }

  void changed() final;

  /// No effect on a control that can't be reached.
  void takeFocus() final;

 protected:
  /// Widgets must stay untouched where they show the control's state already.
  virtual void update();

  virtual bool isToBeSeen() const { return control_.isVisible(); }

  /// Moves the focus here and runs a user...() operation, unless it is the program that has changed
  /// the widget.
  void tell(const std::function<void()>& event);

  PeerContext context() const { return context_; }

 private:
  PeerContext context_;
  Control& control_;
  QWidget& widget_;
  bool labelled_ = false;
  std::string shownToolTip_;
};

}  // namespace tamrikon
