// The add-in as the IDE sees it: connected and disconnected by it, and told when its items are
// clicked.
#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "compiler/session.h"
#include "dialogs/frm_add_in.h"
#include "dialogs/options_owner.h"
#include "dialogs/progress_dlg.h"
#include "ide/add_in_host.h"
#include "ide/ide.h"
#include "platform/user_settings.h"

namespace tamrikon {

enum class ConnectMode { afterStartup = 0, startup = 1, external = 2 };
enum class RemoveMode { hostShutdown = 0, userClosed = 1 };

class connect final : public OptionsOwner {
 public:
  /// All of them must outlive this object.
  connect(Toolkit& toolkit, Session& session, AddInHost& host, UserSettings& userSettings);
  ~connect() override;

  VBE* VBInstance = nullptr;   // null while disconnected
  bool FormDisplayed = false;  // the Options dialog is up

  /// There is one, shown again and again.
  ProgressDlg progressDlg;

  // The clicks on the five items, and the projects that come and go.
  std::unique_ptr<CommandBarEvents> MenuHandler;
  std::unique_ptr<CommandBarEvents> CodeMenuHandler;
  std::unique_ptr<CommandBarEvents> CodeMenuHandlerEditor;
  std::unique_ptr<CommandBarEvents> CodeMenuHandlerCopy;
  std::unique_ptr<CommandBarEvents> ToolbarHandler;
  std::unique_ptr<VBProjectsEvents> ProjectHandler;

  /// What holds this object and all that it was made with, if its owner may drop it while one of
  /// its operations runs, as a disconnection from within a dialog does: they keep it to their end.
  std::weak_ptr<void> owner;

  /// What keeps this code in memory, if it can be unloaded; held as long as the IDE may call it,
  /// also through a window procedure that couldn't be taken out.
  std::shared_ptr<void> code;

  /// Puts the add-in into the IDE: its items and their events, unless the mode is external, which
  /// shows the options instead, and its window procedure. A failure ends that with a message box;
  /// what was made before stays. It is no failure that no project is open.
  void AddinInstance_OnConnection(VBE& application, ConnectMode mode);

  /// Takes all of it out again, as far as the IDE lets it; dialogs that are up are closed, and a
  /// compile that runs is cancelled.
  void AddinInstance_OnDisconnection(RemoveMode mode);

  // Each makes one of the items. Null if that fails.
  CommandBarControl* AddToAddInCommandBar(const std::string& sCaption);
  CommandBarControl* AddToCodeWindowCommandBar(const std::string& sCaption);
  CommandBarControl* AddToCodeWindowCommandBarEDITOR(const std::string& sCaption);
  CommandBarControl* AddToCodeWindowCommandBarCOPY(const std::string& sCaption);
  CommandBarControl* AddToStandardToolbar(const std::string& sCaption);

  // What events do. A step that fails is skipped.
  void MenuHandler_Click();
  void CodeMenuHandler_Click();
  void CodeMenuHandlerEditor_Click();
  void CodeMenuHandlerCopy_Click();
  void ToolbarHandler_Click();
  void ProjectHandler_ItemAdded(VBProject& project);
  void ProjectHandler_ItemActivated(VBProject& project);
  void ProjectHandler_ItemRemoved(VBProject& project);

  /// Runs the Options dialog and, if it asks for one, the compile after it. A step that fails is
  /// skipped.
  void Show();

  /// Closes the Options dialog.
  void Hide() override;

 private:
  struct Item;
  struct MadeItem {
    const Item* item;
    CommandBarControl* control;
  };
  struct WindowHook;

  static const Item kItems[5];

  /// Runs a step that may fail; whether it worked. Nothing may be thrown into the IDE.
  template <typename Step>
  static bool attempt(Step&& step) {
    try {
      step();
      return true;
    } catch (const std::exception&) {
      return false;
    }
  }

  CommandBar* barOf(const Item& item) const;
  CommandBarControl* add(const Item& item, const std::string& sCaption);
  void connectItem(const Item& item);
  void connectProjects();
  void hookWindow();
  void handleMessage(std::uint32_t message);
  void takeOut();

  void loadSettings();
  void keepUpSettings();
  void forgetProject();

  void compileProjects();

  Toolkit& toolkit_;
  Session& session_;
  AddInHost& host_;
  UserSettings& userSettings_;
  std::vector<MadeItem> items_;         // in the order in which they were made
  std::uint32_t buttonFaceColour_ = 0;  // which white has on the faces
  std::shared_ptr<WindowHook> hook_;    // null if the window procedure is the window's own
  bool hasSettings_ = false;            // the session's settings are those of the active project
  std::shared_ptr<frmAddIn> options_;
};

}  // namespace tamrikon
