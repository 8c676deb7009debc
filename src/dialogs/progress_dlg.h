// The dialog in which a compile runs: showing it starts one.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "compiler/compile_listener.h"
#include "compiler/compile_run.h"
#include "compiler/session.h"
#include "ide/ide.h"
#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/text_controls.h"
#include "toolkit/toolkit.h"
#include "toolkit/value_controls.h"

namespace tamrikon {

class ProgressDlg final : public Dialog, private CompileListener {
 public:
  /// Both must outlive the dialog.
  ProgressDlg(Toolkit& toolkit, Session& session);

  // Set before the dialog is shown.
  VBE* VBInstance = nullptr;
  CompileRun run;

  // Of a group compile, for which the dialog is shown once for each project.
  bool lastGroupProject = false;
  std::string groupLogText;  // the log of the projects so far

  /// Takes the faults of the project, which aren't part of the log; empty: nobody does.
  DiagnosticSink onFault;

  TextBox Text1{*this, "Text1"};  // the progress log
  ProgressIndicator Animation1{*this, "Animation1"};
  StatusBar StatusBar1{*this, "StatusBar1"};  // panel 1: what is being compiled
  CommandButton Command1{*this, "Command1", "Show Documentation", "Show generated documentation"};
  CommandButton CancelButton{*this, "CancelButton", "Cancel",
                             "Stop the compilation and close the window"};
  CommandButton OKButton{*this, "OKButton", "Close", "Close the window"};

  /// Compiles the IDE's active project with the session's settings. A failure that the log doesn't
  /// explain closes the dialog.
  void startCompile();

  /// Of the last compile.
  CompileOutcome outcome() const { return outcome_; }

 private:
  Layout layout() override;
  void onActivate() override;
  bool onQueryClose() override { return false; }

  void compileBegins() override;
  void compileEnded(CompileOutcome outcome) override;
  void addMessage(const std::string& text) override;
  void addProgramOutput(const ProgramOutput& output) override { addMessage(output.log); }
  void report(const Diagnostic& diagnostic) override;
  void setStatusLine(const std::string& text) override { StatusBar1.setPanel(1, text); }
  void setProgress(std::size_t done, std::size_t all) override {
    Animation1.setProgress(done, all);
  }
  void checkpoint(CompileRun&) override { toolkit().checkpoint(); }

  void setRunning(bool running);

  /// While programs run, the second request asks whether to end them.
  void cancel();

  Session& session_;
  CompileOutcome outcome_ = CompileOutcome::finished;
};

}  // namespace tamrikon
