// The pane of a module, and the window around it. It stays when the window is closed, and
// remembers what it showed until it is opened again.
#pragma once

#include <QPointer>

#include "host/host_module.h"
#include "ide/ide.h"
#include "workbench/code_tabs.h"
#include "workbench/code_window.h"

namespace tamrikon {

class WorkbenchPane final : public CodePane, public Window {
 public:
  /// Both must outlive the pane.
  WorkbenchPane(CodeTabs& tabs, HostModule& module) : tabs_(tabs), module_(module) {}

  void open();
  CodeWindow* codeWindow() const { return window_; }

  Selection GetSelection() const override;
  void SetSelection(const Selection& selection) override;
  void setTopLine(int line) override;
  tamrikon::CodeModule& CodeModule() const override { return module_; }
  tamrikon::Window& Window() const override { return const_cast<WorkbenchPane&>(*this); }

  /// The edits stay with the module.
  void Close() override;

  /// Opens the window if it is closed.
  void SetFocus() override;

  /// 0: a tab is no window of the platform's.
  std::uintptr_t HWnd() const override { return 0; }

 private:
  CodeTabs& tabs_;
  HostModule& module_;
  QPointer<CodeWindow> window_;  // null while it is closed
  Selection selection_;          // while it is closed
  int topLine_ = 1;
};

}  // namespace tamrikon
