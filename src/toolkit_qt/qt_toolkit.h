// Shows dialogs as windows, with Qt Widgets.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QWidget>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/toolkit.h"
#include "toolkit_qt/opened_documents.h"

namespace tamrikon {

/// Needs a QApplication, whose main thread is the only one to use it. Dialogs keep their sizes as
/// long as the toolkit lives. What a dialog's handler throws comes out of runModal() when the
/// dialog has gone.
class QtToolkit final : public Toolkit {
 public:
  QtToolkit() = default;

  /// The window that dialogs stand on while none of the application's windows is in front.
  explicit QtToolkit(QWidget* owner) : owner_(owner) {}
  void setOwner(QWidget* owner) { owner_ = owner; }

  void runModal(Dialog& dialog) override;
  MessageAnswer messageBox(const MessageBox& box) override;
  std::optional<std::string> chooseFileToOpen(const FileChoice& choice) override;
  std::optional<std::string> chooseFileToSave(const FileChoice& choice) override;

  /// Costs little however often it is called: events run every 15 ms or so.
  void checkpoint() override;

  /// Lines end with CR LF.
  std::string clipboardText() override;
  void setClipboardText(const std::string& text) override;
  bool openDocument(const std::string& path, const MessageBox& failure) override;
  void beep() override;

 private:
  std::optional<std::string> chooseFile(const FileChoice& choice, bool toSave);
  QWidget* window() const;

  /// To the dialog in front, from what was shown over it.
  void returnFocus() const;

  QPointer<QWidget> owner_;
  std::vector<QPointer<QWidget>> shown_;  // dialogs, the one in front last
  std::map<std::string, QSize> sizes_;    // of dialogs, by name
  QString lastFolder_;
  QElapsedTimer sinceEvents_;
  OpenedDocuments documents_{[this](const MessageBox& failure) { messageBox(failure); }};
};

}  // namespace tamrikon
