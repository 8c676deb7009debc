// Shows dialogs on a terminal or in a pipe, as far as that goes: a status bar and a progress
// indicator become a status line, a message box becomes a question. All else that a dialog holds
// stays unseen. Messages of a compile are printed as they come.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "cli/command_line.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

class Terminal final : public Toolkit {
 public:
  /// The streams must outlive this object. With `quiet`, only warnings and errors of the log are
  /// printed.
  Terminal(const Streams& streams, bool quiet);
  ~Terminal() override;
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  /// Adds a stream, which must outlive this object, that gets all messages of the log.
  void setLog(std::ostream& log) { log_ = &log; }

  /// Whether a warning or an error was told, in the log or beside it.
  bool hadWarnings() const { return hadWarnings_; }

  /// Activates the dialog and, when that is done, presses its default button if it is enabled:
  /// there is nobody who would.
  void runModal(Dialog& dialog) override;

  /// Without somebody to ask, Cancel is taken, or No where there is no Cancel.
  MessageAnswer messageBox(const MessageBox& box) override;

  /// Nothing is chosen.
  std::optional<std::string> chooseFileToOpen(const FileChoice&) override { return std::nullopt; }
  std::optional<std::string> chooseFileToSave(const FileChoice&) override { return std::nullopt; }

  /// The first Ctrl+C presses the cancel button of the dialog in front, if it can be pressed then.
  /// `interrupted`, if set, is called for each Ctrl+C with their number for that dialog, from 1.
  void checkpoint() override;
  std::function<void(int times)> interrupted;

  /// There is none: what is put there is gone.
  std::string clipboardText() override { return {}; }
  void setClipboardText(const std::string&) override {}

  bool openDocument(const std::string& path, const MessageBox& failure) override;
  void beep() override;

  /// A message of the dialog in front, if there is one: the log gets `text`, the output `wording`.
  void showMessage(const std::string& text, const std::string& wording);

  /// A line on the output.
  void print(const std::string& text);

  /// A line on the error stream.
  void complain(const std::string& text);

 private:
  class StatusPeer;
  class ProgressPeer;

  MessageAnswer ask(const MessageBox& box);
  void showStatus();
  void clearStatus();

  Streams streams_;
  bool quiet_;
  std::ostream* log_ = nullptr;
  bool hadWarnings_ = false;
  Dialog* dialog_ = nullptr;  // in front
  int interrupts_ = 0;        // of it
  std::string status_;
  bool statusIsShown_ = false;
  std::size_t done_ = 0;
  std::size_t all_ = 0;
  std::chrono::steady_clock::time_point lastShown_;
};

}  // namespace tamrikon
