// What the workbench shows of the projects that the host holds, as the host knows it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "host/host_screen.h"
#include "workbench/code_pane.h"
#include "workbench/code_tabs.h"
#include "workbench/ide_events.h"
#include "workbench/qt_command_bars.h"

namespace tamrikon {

class WorkbenchScreen final : public HostScreen {
 public:
  /// Both must outlive the screen.
  WorkbenchScreen(QWidget& mainWindow, CodeTabs& tabs);
  ~WorkbenchScreen() override;

  CodePane& codePane(HostModule& module) override { return openPane(module); }
  CodePane* activeCodePane() override;
  void setActiveCodePane(CodePane& pane) override;
  void projectActivated(VBProject& project) override;
  void projectRemoved(VBProject& project) override;
  tamrikon::Windows& windows() override;
  Window* activeWindow() override;
  Window& mainWindow() override;
  QtCommandBars& commandBars() override { return commandBars_; }
  IdeEvents& events() override { return events_; }

  WorkbenchPane& openPane(HostModule& module);

  /// The pane of a code window.
  WorkbenchPane& paneOf(const CodeWindow& window);

  /// Closes all windows and forgets the panes, before the modules go.
  void clear();

  /// Is told when another project has become the active one.
  std::function<void(VBProject&)> onProjectActivated;

 private:
  class OpenWindows;
  class MainWindow;

  CodeTabs& tabs_;
  QtCommandBars commandBars_;
  IdeEvents events_;
  std::map<HostModule*, std::unique_ptr<WorkbenchPane>> panes_;
  std::unique_ptr<OpenWindows> windows_;
  std::unique_ptr<MainWindow> main_;
};

}  // namespace tamrikon
