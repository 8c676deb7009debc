// A screen that nobody sees: its panes keep what they are told, and there are no bars.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "host/host_screen.h"

namespace tamrikon {

class UnseenPane;

class UnseenScreen final : public HostScreen {
 public:
  UnseenScreen();
  ~UnseenScreen() override;

  CodePane& codePane(HostModule& module) override;
  CodePane* activeCodePane() override;
  void setActiveCodePane(CodePane& pane) override;
  void projectActivated(VBProject& project) override;
  void projectRemoved(VBProject& project) override;

  tamrikon::Windows& windows() override;
  Window* activeWindow() override;
  Window& mainWindow() override;
  tamrikon::CommandBars& commandBars() override;
  tamrikon::Events& events() override;

 private:
  class OpenWindows;
  class MainWindow;
  class ProjectEvents;
  friend class UnseenPane;

  void bringToFront(UnseenPane& pane);

  std::map<HostModule*, std::unique_ptr<UnseenPane>> panes_;
  std::vector<UnseenPane*> open_;  // the one in front is the last
  std::unique_ptr<OpenWindows> windows_;
  std::unique_ptr<MainWindow> main_;
  std::unique_ptr<ProjectEvents> events_;
};

}  // namespace tamrikon
