// What shows dialogs and asks the user, whoever that is: windows or a test.
#pragma once

#include <optional>
#include <string>

#include "toolkit/prompter.h"

namespace tamrikon {

class Dialog;

/// What a dialog for choosing a file shows.
struct FileChoice {
  std::string title;

  /// Descriptions and patterns in turn, divided by "|", such as
  /// "Text (*.txt)|*.txt|All files (*.*)|*.*". The first pair is taken at first.
  std::string filter;
  std::string folder;    // empty: the last one, or the current one
  std::string fileName;  // proposed
};

class Toolkit : public Prompter {
 public:
  /// Shows a dialog that has been loaded, activates it, and returns when it has been closed.
  /// Dialog::showModal() is the way in.
  virtual void runModal(Dialog& dialog) = 0;

  /// Full path of the file that was chosen, or nothing if the user cancelled. A file to open is
  /// there; before one is replaced, the user has been asked.
  virtual std::optional<std::string> chooseFileToOpen(const FileChoice& choice) = 0;
  virtual std::optional<std::string> chooseFileToSave(const FileChoice& choice) = 0;

  /// Lets pending events run; that is how a request to cancel gets through while work goes on.
  virtual void checkpoint() = 0;

  /// UTF-8, with line ends as they are.
  virtual std::string clipboardText() = 0;
  virtual void setClipboardText(const std::string& text) = 0;

  virtual void beep() = 0;
};

}  // namespace tamrikon
