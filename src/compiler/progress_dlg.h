// The dialog in which a compile runs: showing it starts one.
#pragma once

#include <cstddef>
#include <string>

#include "ide/ide.h"
#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/text_controls.h"
#include "toolkit/value_controls.h"

namespace tamrikon {

class Session;

enum class CompileOutcome { finished, aborted, failed };

/// There is one for a session, shown or not: messages go to its log in any case.
class ProgressDlg final : public Dialog {
 public:
  /// `session` must outlive the dialog.
  explicit ProgressDlg(Session& session);

  /// Set before the dialog is shown.
  VBE* VBInstance = nullptr;

  TextBox Text1{*this, "Text1"};  // the progress log
  ProgressIndicator Animation1{*this, "Animation1"};
  StatusBar StatusBar1{*this, "StatusBar1"};  // panel 1: what is being compiled
  CommandButton Command1{*this, "Command1", "Show Documentation", "Show generated documentation"};
  CommandButton CancelButton{*this, "CancelButton", "Cancel",
                             "Stop the compilation and close the window"};
  CommandButton OKButton{*this, "OKButton", "Close", "Close the window"};

  /// Gives the session a new store, loads the template and compiles the IDE's active project with
  /// the session's settings. A failure that nothing below caught closes the dialog, unless it is
  /// one that the log tells of.
  void startCompile();

  /// Of the last compile.
  CompileOutcome outcome() const { return outcome_; }

  /// Opens the file that the template names as the finished documentation of the last compile. A
  /// message box tells why that can't be done; the result is whether it was.
  bool showDocumentation();

  void addMessage(const std::string& text) { Text1.appendText(text + "\r\n"); }
  void setStatusLine(const std::string& text) { StatusBar1.setPanel(1, text); }

  /// How many topics of how many are written.
  void setProgress(std::size_t done, std::size_t all) { Animation1.setProgress(done, all); }

 private:
  Layout layout() override;
  void onActivate() override;
  bool onQueryClose() override { return false; }
  void setRunning(bool running);

  /// While programs run, the second request asks whether to end them.
  void cancel();

  Session& session_;
  CompileOutcome outcome_ = CompileOutcome::finished;
};

}  // namespace tamrikon
