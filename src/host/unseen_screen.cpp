#include "host/unseen_screen.h"

#include <algorithm>

#include "host/host_module.h"
#include "host/project_event_sources.h"

namespace tamrikon {
namespace {

class NoCommandBars final : public CommandBars {
 public:
  CommandBar* Item(const std::string&) const override { return nullptr; }
  CommandBar* Item(int) const override { return nullptr; }
};

}  // namespace

class UnseenPane final : public CodePane, public Window {
 public:
  UnseenPane(UnseenScreen& screen, HostModule& module) : screen_(screen), module_(module) {}

  Selection GetSelection() const override { return selection_; }
  void SetSelection(const Selection& selection) override { selection_ = selection; }
  void setTopLine(int) override {}
  tamrikon::CodeModule& CodeModule() const override { return module_; }
  tamrikon::Window& Window() const override { return const_cast<UnseenPane&>(*this); }

  void Close() override {
    auto& open = screen_.open_;
    open.erase(std::remove(open.begin(), open.end(), this), open.end());
  }
  void SetFocus() override { screen_.bringToFront(*this); }
  std::uintptr_t HWnd() const override { return 0; }

 private:
  UnseenScreen& screen_;
  HostModule& module_;
  Selection selection_;
};

class UnseenScreen::OpenWindows final : public tamrikon::Windows {
 public:
  explicit OpenWindows(const std::vector<UnseenPane*>& open) : open_(open) {}
  int Count() const override { return static_cast<int>(open_.size()); }
  Window& Item(int number) const override {
    if (number < 1 || number > Count()) throw IdeError("there is no window of that number");
    return *open_[static_cast<std::size_t>(number - 1)];
  }

 private:
  const std::vector<UnseenPane*>& open_;
};

class UnseenScreen::MainWindow final : public Window {
 public:
  void Close() override {}
  void SetFocus() override {}
  std::uintptr_t HWnd() const override { return 0; }
};

class UnseenScreen::ProjectEvents final : public tamrikon::Events {
 public:
  std::unique_ptr<tamrikon::CommandBarEvents> CommandBarEvents(CommandBarControl*) override {
    throw IdeError("there are no command bars");
  }
  std::unique_ptr<tamrikon::VBProjectsEvents> VBProjectsEvents() override { return sources.make(); }

  ProjectEventSources sources;
};

UnseenScreen::UnseenScreen()
    : windows_(std::make_unique<OpenWindows>(open_)),
      main_(std::make_unique<MainWindow>()),
      events_(std::make_unique<ProjectEvents>()) {}

UnseenScreen::~UnseenScreen() = default;

CodePane& UnseenScreen::codePane(HostModule& module) {
  std::unique_ptr<UnseenPane>& pane = panes_[&module];
  if (!pane) pane = std::make_unique<UnseenPane>(*this, module);
  if (std::find(open_.begin(), open_.end(), pane.get()) == open_.end()) {
    open_.insert(open_.begin(), pane.get());
  }
  return *pane;
}

CodePane* UnseenScreen::activeCodePane() {
  return open_.empty() ? nullptr : open_.back();
}

void UnseenScreen::setActiveCodePane(CodePane& pane) {
  auto* own = dynamic_cast<UnseenPane*>(&pane);
  if (own == nullptr) throw IdeError("the window is not one of this IDE's");
  bringToFront(*own);
}

void UnseenScreen::bringToFront(UnseenPane& pane) {
  pane.Close();
  open_.push_back(&pane);
}

tamrikon::Windows& UnseenScreen::windows() {
  return *windows_;
}

Window* UnseenScreen::activeWindow() {
  return open_.empty() ? nullptr : open_.back();
}

Window& UnseenScreen::mainWindow() {
  return *main_;
}

tamrikon::CommandBars& UnseenScreen::commandBars() {
  static NoCommandBars none;
  return none;
}

tamrikon::Events& UnseenScreen::events() {
  return *events_;
}

void UnseenScreen::projectActivated(VBProject& project) {
  events_->sources.projectActivated(project);
}

void UnseenScreen::projectRemoved(VBProject& project) {
  events_->sources.projectRemoved(project);
}

}  // namespace tamrikon
