#include "ide/connect.h"

#include <algorithm>

#include "compiler/group_compile.h"
#include "compiler/store.h"

namespace tamrikon {
namespace {

std::vector<Window*> openWindows(VBE& ide) {
  std::vector<Window*> open;
  const Windows& windows = ide.Windows();
  for (int number = 1; number <= windows.Count(); ++number) open.push_back(&windows.Item(number));
  return open;
}

/// The first module with code of a project, or null.
CodeModule* firstModule(const VBProject& project) {
  const VBComponents& components = project.VBComponents();
  for (int number = 1; number <= components.Count(); ++number) {
    if (CodeModule* module = components.Item(number).CodeModule()) return module;
  }
  return nullptr;
}

}  // namespace

connect::~connect() = default;

void connect::setIde(VBE* ide) {
  ProjectHandler.reset();
  VBInstance = ide;
  // Both hold on to modules of the IDE before.
  session_.currentStore.reset();
  session_.settings = ProjectSettings();
  if (ide == nullptr) return;
  const auto load = [this](VBProject&) {
    tryStep([this] { session_.loadProjectSettings(*VBInstance); });
  };
  tryStep([this] { session_.loadProjectSettings(*VBInstance); });
  tryStep([&] {
    ProjectHandler = ide->Events().VBProjectsEvents();
    ProjectHandler->ItemAdded = load;
    ProjectHandler->ItemActivated = load;
  });
}

void connect::Show() {
  if (FormDisplayed) return;
  if (!options_) options_ = std::make_unique<frmAddIn>(session_);
  options_->VBInstance = VBInstance;
  options_->connect = this;
  FormDisplayed = true;
  tryStep([this] { options_->fillValues(); });
  startCompile = false;
  options_->showModal();
  FormDisplayed = false;
  if (!startCompile || VBInstance == nullptr) return;
  session_.groupLogText.clear();
  tryStep([this] { session_.compileWholeGroup ? compileProjects() : compileProject(); });
}

void connect::Hide() {
  FormDisplayed = false;
  if (options_) options_->close();
}

void connect::compileProject() {
  session_.progressDlg.showModal();
}

void connect::compileProjects() {
  const std::vector<Window*> before = openWindows(*VBInstance);
  Window* const active = VBInstance->ActiveWindow();
  CodePane* pane = nullptr;
  GroupSteps steps;
  steps.activate = [&](VBProject& project) {
    return tryStep([&] {
      CodeModule* const module = firstModule(project);
      if (module == nullptr) throw IdeError("the project has no code");
      pane = &module->CodePane();
      VBInstance->setActiveCodePane(*pane);
    });
  };
  steps.compiled = [&](VBProject&) {
    tryStep([&] {
      Window& window = pane->Window();
      if (std::find(before.begin(), before.end(), &window) == before.end()) window.Close();
    });
  };
  compileGroup(session_, *VBInstance, steps);
  if (active != nullptr) tryStep([&] { active->SetFocus(); });
}

}  // namespace tamrikon
