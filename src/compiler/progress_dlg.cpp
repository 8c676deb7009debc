#include "compiler/progress_dlg.h"

#include <exception>
#include <memory>
#include <stdexcept>
#include <utility>

#include "compiler/session.h"
#include "compiler/store.h"
#include "template/expansion_budget.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

ProgressDlg::ProgressDlg(Session& session)
    : Dialog(session.toolkit, "ProgressDlg", "Compilation status:"), session_(session) {
  Text1.setMultiLine(true);
  Text1.setReadOnly(true);
  Animation1.setVisible(false);
  OKButton.setRole(ButtonRole::default_);
  CancelButton.setRole(ButtonRole::cancel);
  OKButton.onClick = [this] { close(); };
  CancelButton.onClick = [this] { cancel(); };
  Command1.onClick = [this] { showDocumentation(); };
}

Layout ProgressDlg::layout() {
  return column({item(Text1).sized(80, 18).growing(), item(Animation1),
                 row({item(Command1), space(), item(CancelButton), item(OKButton)}),
                 item(StatusBar1)});
}

void ProgressDlg::onActivate() {
  startCompile();
  if (!session_.compileWholeGroup) return;
  session_.groupLogText = Text1.text();
  if (!session_.lastGroupProject) close();
}

void ProgressDlg::setRunning(bool running) {
  OKButton.setEnabled(!running);
  Command1.setEnabled(!running);
  CancelButton.setEnabled(running);
  Animation1.setVisible(running);
  Animation1.setRunning(running);
}

void ProgressDlg::startCompile() {
  session_.currentStore = std::make_unique<store>(session_);
  setCaption("Compiling, please wait...");
  setStatusLine("Analysing the project...");
  setProgress(0, 0);
  setRunning(true);
  Text1.setText(session_.compileWholeGroup ? session_.groupLogText : "");
  session_.cancelRequested = false;
  if (!session_.compileWholeGroup) session_.writtenFiles.beginRun();
  bool hasMessage = true;  // that the user can read
  try {
    if (VBInstance == nullptr) throw std::logic_error("no IDE was given");
    // A template that can't be loaded has set cancelRequested, if the user gave up at the dialog.
    session_.currentStore->loadSrc(session_.settings.templatePath, false);
    session_.currentStore->compile(*VBInstance);
    outcome_ = session_.cancelRequested ? CompileOutcome::aborted : CompileOutcome::finished;
  } catch (const std::length_error& tooMuch) {
    session_.log.logMessage(std::string("ERROR: ") + tooMuch.what());
    outcome_ = CompileOutcome::failed;
  } catch (const std::exception&) {
    outcome_ = CompileOutcome::failed;
    hasMessage = false;
  }
  for (const std::string& line : session_.writtenFiles.endProject()) {
    if (session_.warn) session_.warn(line);
  }
  setRunning(false);
  setStatusLine("");
  setCaption(session_.cancelRequested ? "Compilation aborted by user" : "Compilation status:");
  if (outcome_ == CompileOutcome::failed) {
    toolkit().beep();
    if (!hasMessage) return close();
  }
  OKButton.setFocus();
}

void ProgressDlg::cancel() {
  if (!std::exchange(session_.cancelRequested, true) || !session_.programsRun) return;
  const MessageBox question{"Cancel",
                            "The compile stops when the template's programs have ended. End them "
                            "now?",
                            MessageButtons::yesNo, MessageIcon::question};
  if (toolkit().messageBox(question) == MessageAnswer::yes) session_.endsPrograms = true;
}

bool ProgressDlg::showDocumentation() {
  std::string file;
  try {
    if (session_.currentStore) file = session_.currentStore->helpFile();
  } catch (const BudgetUsedUp& usedUp) {
    toolkit().messageBox({"Error while showing documentation", std::string(usedUp.what()) + "."});
    return false;
  }
  return toolkit().openDocument(
      file, {"Error while showing documentation", "Cannot show the \"" + file + "\" file"});
}

}  // namespace tamrikon
