// What the commands do that the window sees to itself, and what its parts ask of it.
#include <QDockWidget>
#include <QFileInfo>
#include <QMessageBox>

#include "addin_host/add_in_manager_dlg.h"
#include "addin_host/own_component.h"
#include "platform/data_folder.h"
#include "toolkit/open_manual.h"
#include "toolkit_qt/qt_text.h"
#include "workbench/lists_in_words.h"
#include "workbench/program_name.h"
#include "workbench/project_search.h"
#include "workbench/workbench_window.h"

namespace tamrikon {

void WorkbenchWindow::connectCommands() {
  const auto on = [this](QAction* action, auto call) {
    connect(action, &QAction::triggered, this, call);
  };
  on(actions_.open, [this] {
    const QString folder = QFileInfo(keeper_.path()).path();
    const QString path = prompts_.chooseProject(keeper_.path().isEmpty() ? QString() : folder);
    if (!path.isEmpty()) openProject(path);
  });
  on(actions_.save, [this] {
    if (tabs_.current() != nullptr) keeper_.save(tabs_.current()->module());
  });
  on(actions_.saveAll, [this] { keeper_.saveAll(); });
  on(actions_.closeProject, [this] { keeper_.close(); });
  on(actions_.exit, [this] { close(); });
  on(actions_.code, [this] {
    if (explorer_.hasFocus()) return explorer_.openSelected();
    if (tabs_.current() != nullptr) tabs_.current()->editor().setFocus();
  });
  on(actions_.explorer, [this] { showDock(*explorerDock_); });
  on(actions_.messages, [this] { showDock(*messagesDock_); });
  on(actions_.addInManager, [this] { manageAddIns(); });
  on(actions_.contents, [this] { openManual(addInHost_.toolkit(), dataFolder()); });
  on(actions_.about, [this] { tellAbout(); });
  connect(&recentMenu_, &RecentMenu::openWanted, this, &WorkbenchWindow::openProject);
}

void WorkbenchWindow::connectParts() {
  connect(&keeper_, &ProjectKeeper::opened, this, &WorkbenchWindow::projectOpened);
  connect(&keeper_, &ProjectKeeper::closing, this, &WorkbenchWindow::projectClosing);
  connect(&keeper_, &ProjectKeeper::closed, this, &WorkbenchWindow::showState);
  connect(&keeper_, &ProjectKeeper::saved, this, [this] {
    showState();
    for (const Diagnostic& warning : ide()->takeSaveWarnings()) showFault(warning);
  });
  connect(&keeper_, &ProjectKeeper::saveFailed, this, &WorkbenchWindow::showPlace);
  connect(&diskChanges_, &DiskChanges::reopenWanted, this, &WorkbenchWindow::reopenProject);
  connect(&diskChanges_, &DiskChanges::reloaded, &explorer_, &ProjectExplorer::refresh);
  connect(&tabs_, &CodeTabs::frontChanged, this, &WorkbenchWindow::frontChanged);
  connect(&tabs_, &CodeTabs::windowChanged, this, &WorkbenchWindow::showState);
  connect(&tabs_, &CodeTabs::closeWanted, this, &WorkbenchWindow::closeCode);
  connect(&codeCommands_, &CodeCommands::caretMoved, this, &WorkbenchWindow::showCaret);
  connect(&findBar_, &FindBar::projectSearchWanted, this, &WorkbenchWindow::findInProject);
  connect(&explorer_, &ProjectExplorer::codeWanted, this,
          [this](HostModule& module) { showCode(module); });
  connect(&explorer_, &ProjectExplorer::documentWanted, this, [this](const QString& path) {
    addInHost_.toolkit().openDocument(
        fromQt(path),
        {"Open",
         "This file can't be opened. Either it is gone, or the desktop has no program "
         "for it:\r" +
             fromQt(path)});
  });
  connect(&explorer_, &ProjectExplorer::activationWanted, this,
          [this](HostProject& project) { ide()->activate(project); });
  connect(&messages_, &MessageList::placeChosen, this, &WorkbenchWindow::showPlace);
  connect(&unsavedEdits_, &UnsavedEdits::restored, this,
          [this](HostModule& module, int line) { showCode(module).editor().goToLine(line); });
  connect(&messages_, &MessageList::emptied, messagesDock_, &QDockWidget::hide);
  connect(&userTags_, &UserTags::changed, this, [this] {
    for (const CodeWindow* window : tabs_.windows()) showUserTags(*window);
  });
  connect(&tabs_, &CodeTabs::added, this, &WorkbenchWindow::showUserTags);
  screen_.onProjectActivated = [this](VBProject&) {
    explorer_.markActive();
    showState();
  };
}

CodeWindow& WorkbenchWindow::showCode(HostModule& module) {
  WorkbenchPane& pane = screen_.openPane(module);
  pane.SetFocus();
  return *pane.codeWindow();
}

void WorkbenchWindow::showPlace(HostModule& module, const Selection& place) {
  CodeEditor& editor = showCode(module).editor();
  editor.setSelection(place);
  editor.centerCursor();
}

void WorkbenchWindow::showUserTags(const CodeWindow& window) {
  window.editor().setUserTags(UserTags::of(window.module().component().project()));
}

void WorkbenchWindow::closeCode(CodeWindow& window) {
  HostModule& module = window.module();
  if (keeper_.isUnsaved(module)) {
    tabs_.bringToFront(window);
    enum { save, leave, cancel };
    const Question question{
        "Save the changes to " + toQt(module.Name()) + '?',
        "Without that, they stay with the project, and you are asked again before it is closed.",
        {"&Save", "&Don't Save", "Cancel"},
        save,
        cancel};
    const int answer = prompts_.ask(question);
    if (answer == cancel || (answer == save && !keeper_.save(module))) return;
  }
  screen_.paneOf(window).Close();
  if (tabs_.current() != nullptr) {
    tabs_.current()->editor().setFocus();
  } else {
    explorer_.setFocus();
  }
}

void WorkbenchWindow::findInProject(const TextSearch& search) {
  if (ide() == nullptr || search.text.isEmpty()) return;
  messages_.show(searchProject(static_cast<HostProject&>(ide()->ActiveVBProject()), search));
  showDock(*messagesDock_);
}

void WorkbenchWindow::showDock(QDockWidget& dock) {
  dock.show();
  dock.raise();
  dock.widget()->setFocus(Qt::ShortcutFocusReason);
}

void WorkbenchWindow::connectAddIns(const std::string& external) {
  std::vector<std::string> failures;
  const auto note = [&](std::optional<std::string> failure) {
    if (failure) failures.push_back(std::move(*failure));
  };
  note(registerOwnComponent(userRegistry()));
  // First, as one that is loaded on start-up as well isn't connected twice.
  if (!external.empty()) note(addIns_.connect(external, vbext_cm_External));
  for (std::string& failure : addIns_.connectOnStartup()) note(std::move(failure));
  if (failures.empty()) return;
  QStringList lines;
  for (const std::string& failure : failures) lines += toQt(failure);
  prompts_.ask({"Not all add-ins could be loaded.", inLines(lines), {"OK"}});
}

void WorkbenchWindow::manageAddIns() {
  AddInManagerDlg(addInHost_.toolkit(), addIns_).run();
}

void WorkbenchWindow::tellAbout() {
  QMessageBox box(this);
  box.setWindowTitle(QString("About ") + kWorkbenchName);
  box.setTextFormat(Qt::PlainText);
  box.setText(QString(kWorkbenchName) + ' ' + TAMRIKON_VERSION);
  box.setInformativeText(
      "Edits Visual Basic 6 projects, and turns the structured comments in them into "
      "documentation.");
  box.exec();
}

}  // namespace tamrikon
