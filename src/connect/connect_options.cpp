// The part of `connect` that runs the Options dialog and the compile after it.
#include <algorithm>
#include <optional>

#include "compiler/group_compile.h"
#include "connect/connect.h"

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

void connect::Show() {
  const std::shared_ptr<void> held = owner.lock();
  if (FormDisplayed || progressDlg.isShown()) return;
  keepUpSettings();
  if (!options_) options_ = std::make_shared<frmAddIn>(toolkit_, session_);
  const std::shared_ptr<frmAddIn> options = options_;  // which a disconnection lets go
  options->VBInstance = VBInstance;
  options->connect = this;
  FormDisplayed = true;
  attempt([&] { options->fillValues(); });
  startCompile = false;
  attempt([&] { options->showModal(); });
  FormDisplayed = false;
  if (!startCompile || VBInstance == nullptr) return;
  progressDlg.VBInstance = VBInstance;
  progressDlg.run.compileWholeGroup = compileWholeGroup;
  attempt([this] { compileWholeGroup ? compileProjects() : progressDlg.showModal(); });
  if (VBInstance == nullptr) forgetProject();
}

void connect::Hide() {
  FormDisplayed = false;
  if (options_) options_->close();
}

void connect::compileProjects() {
  VBE& ide = *VBInstance;  // also where a disconnection ends the compile
  std::optional<std::vector<Window*>> before;
  attempt([&] { before = openWindows(ide); });
  Window* active = nullptr;
  attempt([&] { active = ide.ActiveWindow(); });
  CodePane* pane = nullptr;
  GroupSteps steps;
  steps.activate = [&](VBProject& project) {
    return VBInstance != nullptr && attempt([&] {
             CodeModule* const module = firstModule(project);
             if (module == nullptr) throw IdeError("the project has no code");
             pane = &module->CodePane();
             ide.setActiveCodePane(*pane);
             keepUpSettings();
           });
  };
  steps.compile = [&](VBProject&, bool isLast) {
    progressDlg.lastGroupProject = isLast;
    progressDlg.showModal();
    if (!before) return;  // rather one window too many than one that the user misses
    attempt([&] {
      Window& window = pane->Window();
      if (std::find(before->begin(), before->end(), &window) == before->end()) window.Close();
    });
  };
  progressDlg.groupLogText.clear();
  attempt([&] { compileGroup(ide, progressDlg.run, steps); });
  progressDlg.groupLogText.clear();
  if (active != nullptr) attempt([&] { active->SetFocus(); });
}

}  // namespace tamrikon
