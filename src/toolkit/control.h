// What all controls of a dialog have in common.
//
// A control holds its state and its handlers; it knows no widgets. A renderer attaches a peer to
// each control of a dialog that it shows. Both directions are apart: what the program sets goes to
// the peer and calls no handler; what the user does comes in through the operations named
// user...(), which take over the new state and then call the handler.
#pragma once

#include <functional>
#include <string>

#include "toolkit/key_event.h"

namespace tamrikon {

class Dialog;

/// A renderer's side of one control.
class ControlPeer {
 public:
  virtual ~ControlPeer() = default;

  /// The control's state has changed: the widget is to show it as it is now. A widget that shows it
  /// already must stay untouched, with its caret and selection.
  virtual void changed() = 0;

  /// One item or row, from 0, has changed.
  virtual void itemChanged(int) { changed(); }

  /// `text` was added at the end of a text box.
  virtual void textAppended(const std::string&) { changed(); }

  virtual void takeFocus() {}
  virtual void selectAll() {}
};

class Control {
 public:
  /// `dialog` lists the control under `name`, and must outlive it.
  Control(Dialog& dialog, std::string name, std::string caption = "", std::string toolTip = "");
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption) { set(caption_, caption); }
  const std::string& toolTip() const { return toolTip_; }
  void setToolTip(const std::string& toolTip) { set(toolTip_, toolTip); }
  bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled) { set(enabled_, enabled); }
  bool isVisible() const { return visible_; }
  void setVisible(bool visible) { set(visible_, visible); }

  /// Moves the focus here; no effect on a dialog that isn't shown.
  void setFocus();

  std::function<void()> onGotFocus;
  std::function<void()> onLostFocus;

  /// A key while the control has the focus, before the control itself takes it.
  std::function<void(KeyEvent&)> onKeyDown;

  // For renderers.
  void userGotFocus() { call(onGotFocus); }
  void userLostFocus() { call(onLostFocus); }
  void userPressedKey(KeyEvent& event) {
    if (onKeyDown) onKeyDown(event);
  }

  /// Null takes the peer away. The peer must outlive its being attached.
  void attach(ControlPeer* peer) { peer_ = peer; }

 protected:
  static void call(const std::function<void()>& handler) {
    if (handler) handler();
  }

  template <typename T>
  void set(T& field, const T& value) {
    if (field == value) return;
    field = value;
    changed();
  }

  void changed() const {
    if (peer_ != nullptr) peer_->changed();
  }

  ControlPeer* peer() const { return peer_; }

 private:
  std::string name_;
  std::string caption_;
  std::string toolTip_;
  bool enabled_ = true;
  bool visible_ = true;
  ControlPeer* peer_ = nullptr;
};

}  // namespace tamrikon
