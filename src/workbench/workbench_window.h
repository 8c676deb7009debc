// The main window: the projects that are open, their code, and what is done with them.
#pragma once

#include <QMainWindow>
#include <QSettings>
#include <memory>
#include <string>

#include "addin_host/add_ins.h"
#include "host/host_ide.h"
#include "platform/file_system.h"
#include "workbench/code_commands.h"
#include "workbench/code_tabs.h"
#include "workbench/disk_changes.h"
#include "workbench/find_bar.h"
#include "workbench/message_list.h"
#include "workbench/project_explorer.h"
#include "workbench/project_keeper.h"
#include "workbench/prompts.h"
#include "workbench/recent_files.h"
#include "workbench/recent_menu.h"
#include "workbench/unsaved_edits.h"
#include "workbench/user_tags.h"
#include "workbench/workbench_actions.h"
#include "workbench/workbench_add_in_host.h"
#include "workbench/workbench_ide.h"
#include "workbench/workbench_screen.h"

class QLabel;
class QStackedWidget;

namespace tamrikon {

/// What a test has otherwise than the user.
struct WorkbenchOptions {
  QString settingsFile;        // empty: the user's settings
  Prompts* prompts = nullptr;  // null: boxes above the window
};

class WorkbenchWindow final : public QMainWindow {
  Q_OBJECT
 public:
  explicit WorkbenchWindow(const WorkbenchOptions& options = {});
  ~WorkbenchWindow() override;

  /// Registers Tamrikon's own add-in if need be, and loads the add-ins that the user wants on
  /// start-up. `external` names one that is connected from outside; it may be empty. What fails is
  /// told to the user, and the rest goes on. Called once, when the window is shown.
  void connectAddIns(const std::string& external = {});

  /// Opens a project or group and puts it on the list of recent ones. False if the user cancelled,
  /// or if it can't be opened, which the user has been told then.
  bool openProject(const QString& path);

  /// Null if nothing is open.
  HostIde* ide() const { return keeper_.ide(); }

  /// Opens a module's code, or brings it to the front.
  CodeWindow& showCode(HostModule& module);

  WorkbenchScreen& screen() { return screen_; }

  /// What add-ins connect to.
  VBE& vbe() { return vbe_; }
  AddInHost& addInHost() { return addInHost_; }
  DiskChanges& diskChanges() { return diskChanges_; }

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void layOut();
  void nameBars();
  void connectCommands();
  void connectParts();
  void restoreLayout();

  void projectOpened(HostIde& ide, const std::vector<Diagnostic>& faults);
  void showFault(const Diagnostic& fault);
  void projectClosing(HostIde& ide);
  void reopenProject();

  /// Closes a code window for the user, who may cancel.
  void closeCode(CodeWindow& window);
  void showPlace(HostModule& module, const Selection& place);
  void showUserTags(const CodeWindow& window);
  void frontChanged();
  void showState();
  void showCaret();
  void showDock(QDockWidget& dock);
  void findInProject(const TextSearch& search);
  void manageAddIns();
  void tellAbout();

  std::unique_ptr<BoxPrompts> ownPrompts_;
  Prompts& prompts_;
  QSettings settings_;
  RecentFiles recent_;
  ProjectKeeper keeper_;
  DiskChanges diskChanges_;
  UnsavedEdits unsavedEdits_;
  UserTags userTags_;
  WorkbenchActions actions_;
  CodeTabs& tabs_;
  FindBar& findBar_;
  ProjectExplorer& explorer_;
  MessageList& messages_;
  WorkbenchScreen screen_;
  WorkbenchIde vbe_;
  WorkbenchAddInHost addInHost_;
  AddIns addIns_;
  RecentMenu recentMenu_;
  CodeCommands codeCommands_;
  QDockWidget* explorerDock_ = nullptr;
  QDockWidget* messagesDock_ = nullptr;
  QStackedWidget* middle_ = nullptr;  // the tabs, or what stands there while there are none
  QLabel* hint_ = nullptr;
  QLabel* caret_ = nullptr;
};

}  // namespace tamrikon
