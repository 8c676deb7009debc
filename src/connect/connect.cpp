#include "connect/connect.h"

#include <utility>

#include "compiler/store.h"
#include "connect/add_comment_at_cursor.h"
#include "connect/connect_items.h"
#include "connect/copy_selection_as_code.h"
#include "connect/item_faces.h"
#include "editor/open_comment_editor.h"
#include "toolkit/toolkit.h"

namespace tamrikon {
namespace {

constexpr const char* kSettingsSection = "Settings";
constexpr const char* kDisplayOnConnect = "DisplayOnConnect";

}  // namespace

/// What stands in the window's procedure; it only passes messages on once its owner has let go.
struct connect::WindowHook {
  void handle(std::uint32_t message) const {
    const WindowProcedure next = old;  // the handler may take this procedure out
    if (owner != nullptr) owner->handleMessage(message);
    if (next) next(message);
  }

  connect* owner;
  WindowProcedure old;
  std::shared_ptr<void> code;
};

connect::connect(Toolkit& toolkit, Session& session, AddInHost& host, UserSettings& userSettings)
    : progressDlg(toolkit, session),
      toolkit_(toolkit),
      session_(session),
      host_(host),
      userSettings_(userSettings) {
  session_.codePageOf = [&host](const VBProject& project) -> const CodePage& {
    return host.codePageOf(project);
  };
  progressDlg.onFault = [&host](const Diagnostic& fault) { host.report(fault); };
}

connect::~connect() {
  if (hook_) hook_->owner = nullptr;
}

void connect::AddinInstance_OnConnection(VBE& application, ConnectMode mode) {
  const std::shared_ptr<void> held = owner.lock();
  takeOut();  // what a connection that failed has left
  std::string failureText;
  try {
    VBInstance = &application;
    buttonFaceColour_ = host_.buttonFaceColour();
    if (application.VBProjects().Count() > 0) loadSettings();
    if (mode == ConnectMode::external) {
      Show();
      if (VBInstance == nullptr) return;  // disconnected meanwhile
    } else {
      for (const Item& item : kItems) {
        failureText = item.failureText;
        connectItem(item);
      }
      failureText.clear();
      connectProjects();
    }
    hookWindow();
    if (mode != ConnectMode::afterStartup) return;
    if (userSettings_.get(kSettingsSection, kDisplayOnConnect, "0") == "1") Show();
  } catch (const std::exception& failure) {
    toolkit_.messageBox(
        {"Tamrikon", failureText.empty() ? failure.what() : std::move(failureText)});
  }
}

void connect::AddinInstance_OnDisconnection(RemoveMode) {
  const std::shared_ptr<void> held = owner.lock();
  takeOut();
  attempt([this] {
    userSettings_.set(kSettingsSection, kDisplayOnConnect, FormDisplayed ? "1" : "0");
  });
  FormDisplayed = false;
  VBInstance = nullptr;
  if (options_) options_->close();
  options_.reset();
  if (progressDlg.isShown()) {
    // The compile, which ends at its next checkpoint, works on the project still.
    progressDlg.run.cancelRequested = true;
    progressDlg.close();
  } else {
    forgetProject();
  }
}

void connect::connectItem(const Item& item) {
  CommandBarControl* const control = add(item, item.caption);
  std::unique_ptr<CommandBarEvents> source = VBInstance->Events().CommandBarEvents(control);
  if (!source) throw IdeError("the item has no events");
  source->Click = [this, &item] { (this->*item.click)(); };
  this->*item.source = std::move(source);
}

void connect::connectProjects() {
  ProjectHandler = VBInstance->Events().VBProjectsEvents();
  if (!ProjectHandler) throw IdeError("the projects have no events");
  ProjectHandler->ItemAdded = [this](VBProject& project) { ProjectHandler_ItemAdded(project); };
  ProjectHandler->ItemActivated = [this](VBProject& project) {
    ProjectHandler_ItemActivated(project);
  };
  ProjectHandler->ItemRemoved = [this](VBProject& project) { ProjectHandler_ItemRemoved(project); };
}

void connect::hookWindow() {
  const auto hook = std::make_shared<WindowHook>(WindowHook{this, nullptr, code});
  hook->old = host_.setWindowProcedure(VBInstance->MainWindow().HWnd(),
                                       [hook](std::uint32_t message) { hook->handle(message); });
  hook_ = hook;
}

void connect::handleMessage(std::uint32_t message) {
  if (message != static_cast<std::uint32_t>(WindowMessage::sysColorChange)) return;
  attempt([this] {
    const std::uint32_t colour = host_.buttonFaceColour();
    if (colour == buttonFaceColour_) return;
    buttonFaceColour_ = colour;
    for (const MadeItem& made : items_) {
      if (!made.item->followsColour) continue;
      attempt([&] { made.control->PasteFace(loadFace(made.item->bitmap, colour)); });
    }
  });
}

void connect::takeOut() {
  if (hook_) {
    hook_->owner = nullptr;
    attempt([this] { host_.setWindowProcedure(VBInstance->MainWindow().HWnd(), hook_->old); });
    hook_.reset();
  }
  for (const MadeItem& made : std::exchange(items_, {})) attempt([&] { made.control->Delete(); });
  for (const Item& item : kItems) (this->*item.source).reset();
  ProjectHandler.reset();
}

void connect::loadSettings() {
  hasSettings_ = false;
  session_.settings = ProjectSettings();  // a load that fails leaves no modules of another project
  session_.loadProjectSettings(*VBInstance);
  hasSettings_ = true;
  for (const Diagnostic& fault : session_.settingsFile.notes(*VBInstance)) host_.report(fault);
}

void connect::keepUpSettings() {
  // Without project events nobody says that another project has become the active one.
  if (VBInstance == nullptr || (ProjectHandler && hasSettings_)) return;
  attempt([this] { loadSettings(); });
}

void connect::forgetProject() {
  hasSettings_ = false;
  session_.currentStore.reset();
  session_.settings = ProjectSettings();
}

void connect::MenuHandler_Click() {
  Show();
}

void connect::ToolbarHandler_Click() {
  Show();
}

void connect::CodeMenuHandler_Click() {
  if (VBInstance == nullptr) return;
  keepUpSettings();
  attempt([this] { addCommentAtCursor(*VBInstance, session_.settings); });
}

void connect::CodeMenuHandlerEditor_Click() {
  if (VBInstance == nullptr) return;
  const std::shared_ptr<void> held = owner.lock();
  keepUpSettings();
  attempt([this] {
    openCommentEditor(toolkit_, session_, *VBInstance,
                      [this](CodeModule& module, const std::function<void()>& edit) {
                        host_.asOneEdit(module, edit);
                      });
  });
}

void connect::CodeMenuHandlerCopy_Click() {
  if (VBInstance == nullptr) return;
  attempt([this] { copySelectionAsCode(*VBInstance, toolkit_); });
}

void connect::ProjectHandler_ItemAdded(VBProject&) {
  attempt([this] { loadSettings(); });
}

void connect::ProjectHandler_ItemActivated(VBProject&) {
  attempt([this] { loadSettings(); });
}

void connect::ProjectHandler_ItemRemoved(VBProject&) {
  // Both hold modules, and those of the active project may be the ones that go.
  forgetProject();
}

}  // namespace tamrikon
