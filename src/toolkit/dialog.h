// A dialog: controls as fields, their handlers, and a description of where they stand.
//
//   class TextInput final : public Dialog {
//    public:
//     explicit TextInput(Toolkit& toolkit) : Dialog(toolkit, "TextInput", "Enter a text") {
//       OKButton.onClick = [this] { text = Text1.text(); close(); };
//     }
//     TextBox Text1{*this, "Text1"};
//     CommandButton OKButton{*this, "OKButton", "OK"};
//     std::string text;
//
//    private:
//     Layout layout() override { return column({item(Text1), row({space(), item(OKButton)})}); }
//   };
#pragma once

#include <string>
#include <vector>

#include "toolkit/key_event.h"
#include "toolkit/layout.h"

namespace tamrikon {

class Control;
class Toolkit;

/// A renderer's side of a dialog that is shown.
class DialogPeer {
 public:
  virtual ~DialogPeer() = default;

  /// The title has changed.
  virtual void captionChanged() = 0;

  /// The dialog has been closed: its modal run is to end.
  virtual void closed() = 0;
};

class Dialog {
 public:
  /// `toolkit` must outlive the dialog.
  Dialog(Toolkit& toolkit, std::string name, std::string caption)
      : toolkit_(toolkit), name_(std::move(name)), caption_(std::move(caption)) {}
  virtual ~Dialog() = default;
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;

  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);

  /// All controls, in the order of their fields, which is also that of the Tab key as far as the
  /// layout doesn't say otherwise.
  const std::vector<Control*>& controls() const { return controls_; }

  /// Shows the dialog, centred on its owner (the window in front), and returns when it has been
  /// closed. A dialog that is shown already stays as it is. What a handler throws closes and
  /// unloads the dialog, and goes on to the caller.
  void showModal();

  /// Ends the modal run; no effect on a dialog that isn't shown.
  void close();
  bool isShown() const { return shown_; }

  /// What shows this dialog, and those that it opens.
  Toolkit& toolkit() const { return toolkit_; }

  // For renderers.

  virtual Layout layout() = 0;

  /// In this order: before the dialog is seen, when it is seen, and when it has gone.
  virtual void onLoad() {}
  virtual void onActivate() {}
  virtual void onUnload() {}

  /// The user wants to close the window by its close box; whether that is granted.
  virtual bool onQueryClose() { return true; }

  /// A key, before the control that has the focus gets it.
  virtual void onKeyDown(KeyEvent&) {}

  /// Null takes the peer away.
  void attach(DialogPeer* peer) { peer_ = peer; }

 private:
  friend class Control;

  void unload();

  Toolkit& toolkit_;
  std::string name_;
  std::string caption_;
  std::vector<Control*> controls_;
  DialogPeer* peer_ = nullptr;
  bool shown_ = false;
};

}  // namespace tamrikon
