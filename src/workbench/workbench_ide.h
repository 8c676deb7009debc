// The workbench as add-ins see it, with a project or without one.
#pragma once

#include <memory>

#include "ide/ide.h"
#include "workbench/project_keeper.h"
#include "workbench/workbench_screen.h"

namespace tamrikon {

/// The same object from the beginning of the workbench to its end, while projects come and go.
class WorkbenchIde final : public VBE {
 public:
  /// Both must outlive this object.
  WorkbenchIde(const ProjectKeeper& keeper, WorkbenchScreen& screen);
  ~WorkbenchIde() override;

  /// The project or group that is open; fails without one.
  HostIde& opened() const;

  VBProject& ActiveVBProject() const override { return opened().ActiveVBProject(); }
  tamrikon::VBProjects& VBProjects() const override;
  CodePane* ActiveCodePane() const override { return screen_.activeCodePane(); }
  void setActiveCodePane(CodePane& pane) override { opened().setActiveCodePane(pane); }
  tamrikon::Windows& Windows() const override { return screen_.windows(); }
  Window* ActiveWindow() const override { return screen_.activeWindow(); }
  Window& MainWindow() const override { return screen_.mainWindow(); }
  tamrikon::CommandBars& CommandBars() const override { return screen_.commandBars(); }
  tamrikon::Events& Events() const override { return screen_.events(); }

 private:
  const ProjectKeeper& keeper_;
  WorkbenchScreen& screen_;
  std::unique_ptr<tamrikon::VBProjects> none_;
};

}  // namespace tamrikon
