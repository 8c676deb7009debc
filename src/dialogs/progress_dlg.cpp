#include "dialogs/progress_dlg.h"

#include <utility>

#include "compiler/compile.h"
#include "compiler/store.h"
#include "dialogs/show_documentation.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

ProgressDlg::ProgressDlg(Toolkit& toolkit, Session& session)
    : Dialog(toolkit, "ProgressDlg", "Compilation status:"), session_(session) {
  Text1.setMultiLine(true);
  Text1.setReadOnly(true);
  Animation1.setVisible(false);
  OKButton.setRole(ButtonRole::default_);
  CancelButton.setRole(ButtonRole::cancel);
  OKButton.onClick = [this] { close(); };
  CancelButton.onClick = [this] { cancel(); };
  Command1.onClick = [this] { showDocumentation(session_.currentStore.get(), this->toolkit()); };
}

Layout ProgressDlg::layout() {
  return column({item(Text1).sized(80, 18).growing(), item(Animation1),
                 row({item(Command1), space(), item(CancelButton), item(OKButton)}),
                 item(StatusBar1)});
}

void ProgressDlg::onActivate() {
  startCompile();
  if (!run.compileWholeGroup) return;
  groupLogText = Text1.text();
  if (!lastGroupProject) close();
}

void ProgressDlg::setRunning(bool running) {
  OKButton.setEnabled(!running);
  Command1.setEnabled(!running);
  CancelButton.setEnabled(running);
  Animation1.setVisible(running);
  Animation1.setRunning(running);
}

void ProgressDlg::startCompile() {
  session_.currentStore.reset();
  CompileResult result = compileProject(session_, *VBInstance, run, *this);
  session_.currentStore = std::move(result.compiled);
  outcome_ = result.outcome;
  if (result.explainsFailure) {
    OKButton.setFocus();
  } else {
    close();
  }
}

void ProgressDlg::compileBegins() {
  setCaption("Compiling, please wait...");
  setStatusLine("Analysing the project...");
  setProgress(0, 0);
  setRunning(true);
  Text1.setText(run.compileWholeGroup ? groupLogText : "");
}

void ProgressDlg::compileEnded(CompileOutcome outcome) {
  setRunning(false);
  setStatusLine("");
  setCaption(run.cancelRequested ? "Compilation aborted by user" : "Compilation status:");
  if (outcome == CompileOutcome::failed) toolkit().beep();
}

void ProgressDlg::addMessage(const std::string& text) {
  Text1.appendText(text + "\r\n");
}

void ProgressDlg::report(const Diagnostic& diagnostic) {
  if (diagnostic.about != Diagnostic::About::project) return addMessage(logLineOf(diagnostic));
  if (onFault) onFault(diagnostic);
}

void ProgressDlg::cancel() {
  if (!std::exchange(run.cancelRequested, true) || !run.programsRun) return;
  const MessageBox question{"Cancel",
                            "The compile stops when the template's programs have ended. End them "
                            "now?",
                            MessageButtons::yesNo, MessageIcon::question};
  if (toolkit().messageBox(question) == MessageAnswer::yes) run.endsPrograms = true;
}

}  // namespace tamrikon
