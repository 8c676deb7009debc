// The window of a dialog that is shown.
#pragma once

#include <QDialog>
#include <QTimer>
#include <exception>
#include <functional>

#include "toolkit/dialog.h"
#include "toolkit_qt/caption_marks.h"
#include "toolkit_qt/dialog_keys.h"
#include "toolkit_qt/event_gate.h"
#include "toolkit_qt/peer_set.h"

namespace tamrikon {

/// Application modal. Once it is seen, it activates the dialog; after that the dialog hears what
/// the user does until it closes.
class DialogWindow final : public QDialog, private DialogPeer {
 public:
  /// `dialog` must outlive the window. `onClosed` is told when it has been closed, or when the
  /// window is destroyed before.
  DialogWindow(Dialog& dialog, QWidget* owner, std::function<void()> onClosed);
  ~DialogWindow() override;

  /// What a handler has thrown; that has closed the dialog. Null if nothing was thrown.
  std::exception_ptr failure() const { return gate_.failure(); }

  bool eventFilter(QObject* watched, QEvent* event) override;

  /// As large as its contents want to be, as wide as its title, and no larger than the screen.
  QSize sizeHint() const override;

  /// Esc is a matter of the cancel button.
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void captionChanged() override;
  void closed() override;

  void activate();
  void focusFirst();
  void centre();

  Dialog& dialog_;
  std::function<void()> onClosed_;
  EventGate gate_;
  CaptionMarks marks_;
  PeerSet peers_;
  DialogKeys keys_;
  QTimer activateSoon_;
  bool isActivated_ = false;
};

}  // namespace tamrikon
