// The way from the widgets of one shown dialog to its handlers.
#pragma once

#include <QObject>
#include <QTimer>
#include <exception>
#include <functional>

namespace tamrikon {

class Control;
class Dialog;

/// Lets events through while the dialog is shown, and keeps them back while the program itself
/// changes widgets. Keeps the focus as the dialog sees it: which other window is in front doesn't
/// matter to it. What handlers throw is caught here, as it must not cross the event loop, and
/// closes the dialog.
class EventGate final : public QObject {
 public:
  /// `focusedWidgets` says which control has the focus in the window, or null.
  EventGate(Dialog& dialog, std::function<Control*()> focusedWidgets);

  void open() { open_ = true; }
  void shut() { open_ = false; }
  bool isOpen() const { return open_; }

  /// Runs what the user has caused. No effect while the gate is shut.
  void run(const std::function<void()>& event);

  /// The user or a handler has moved the focus: tells the control that had it before, then this
  /// one. Null is none.
  void moveFocus(Control* control);

  /// Widgets have moved the focus by themselves: tells so at once, or if the program has caused it
  /// in a handler, when that is done.
  void focusChanged();

  Control* focused() const { return focused_; }

  /// The program changes widgets as long as one of these lives.
  class Quiet {
   public:
    explicit Quiet(EventGate& gate) : gate_(gate) { ++gate_.quiet_; }
    ~Quiet() { --gate_.quiet_; }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

   private:
    EventGate& gate_;
  };
  bool isQuiet() const { return quiet_ > 0; }

  /// What a handler has thrown first, or null.
  std::exception_ptr failure() const { return failure_; }

 private:
  void settleFocus();

  Dialog& dialog_;
  std::function<Control*()> focusedWidgets_;
  bool open_ = false;
  int quiet_ = 0;
  int running_ = 0;
  bool unsettled_ = false;
  QTimer settleSoon_;
  Control* focused_ = nullptr;
  std::exception_ptr failure_;
};

}  // namespace tamrikon
