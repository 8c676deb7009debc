#include "workbench/workbench_screen.h"

#include <QSignalBlocker>
#include <QWidget>

namespace tamrikon {

class WorkbenchScreen::OpenWindows final : public tamrikon::Windows {
 public:
  explicit OpenWindows(WorkbenchScreen& screen) : screen_(screen) {}
  int Count() const override { return screen_.tabs_.count(); }
  Window& Item(int number) const override {
    if (number < 1 || number > Count()) throw IdeError("there is no window of that number");
    return screen_.paneOf(*screen_.tabs_.windows()[number - 1]);
  }

 private:
  WorkbenchScreen& screen_;
};

class WorkbenchScreen::MainWindow final : public Window {
 public:
  explicit MainWindow(QWidget& widget) : widget_(widget) {}
  void Close() override { widget_.close(); }
  void SetFocus() override {
    widget_.raise();
    widget_.activateWindow();
  }
  std::uintptr_t HWnd() const override { return static_cast<std::uintptr_t>(widget_.winId()); }

 private:
  QWidget& widget_;
};

WorkbenchScreen::WorkbenchScreen(QWidget& mainWindow, CodeTabs& tabs)
    : tabs_(tabs),
      windows_(std::make_unique<OpenWindows>(*this)),
      main_(std::make_unique<MainWindow>(mainWindow)) {}

WorkbenchScreen::~WorkbenchScreen() = default;

WorkbenchPane& WorkbenchScreen::openPane(HostModule& module) {
  std::unique_ptr<WorkbenchPane>& pane = panes_[&module];
  if (!pane) pane = std::make_unique<WorkbenchPane>(tabs_, module);
  pane->open();
  return *pane;
}

WorkbenchPane& WorkbenchScreen::paneOf(const CodeWindow& window) {
  return *panes_.at(&window.module());
}

CodePane* WorkbenchScreen::activeCodePane() {
  const CodeWindow* window = tabs_.current();
  return window == nullptr ? nullptr : &paneOf(*window);
}

void WorkbenchScreen::setActiveCodePane(CodePane& pane) {
  for (const auto& [module, own] : panes_) {
    if (own.get() == &pane) return own->SetFocus();
  }
  throw IdeError("the window is not one of this IDE's");
}

void WorkbenchScreen::projectActivated(VBProject& project) {
  if (onProjectActivated) onProjectActivated(project);
  events_.projects().projectActivated(project);
}

void WorkbenchScreen::projectRemoved(VBProject& project) {
  events_.projects().projectRemoved(project);
}

tamrikon::Windows& WorkbenchScreen::windows() {
  return *windows_;
}

Window* WorkbenchScreen::activeWindow() {
  const CodeWindow* window = tabs_.current();
  return window == nullptr ? nullptr : &paneOf(*window);
}

Window& WorkbenchScreen::mainWindow() {
  return *main_;
}

void WorkbenchScreen::clear() {
  {
    const QSignalBlocker noFrontInBetween(tabs_);
    for (const auto& [module, pane] : panes_) pane->Close();
  }
  panes_.clear();
  emit tabs_.frontChanged();
}

}  // namespace tamrikon
