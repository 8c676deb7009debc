// What add-ins need of the workbench beside the surface of the IDE.
#pragma once

#include <QWidget>

#include <functional>
#include <string>
#include <utility>

#include "ide/add_in_host.h"
#include "toolkit_qt/qt_toolkit.h"
#include "workbench/workbench_ide.h"

namespace tamrikon {

class WorkbenchAddInHost final : public AddInHost {
 public:
  /// Both must outlive this object. `report` shows what is wrong.
  WorkbenchAddInHost(QWidget& window, WorkbenchIde& ide, DiagnosticSink report)
      : window_(window), ide_(ide), report_(std::move(report)), toolkit_(&window) {}

  VBE& application() override { return ide_; }
  QtToolkit& toolkit() override { return toolkit_; }
  const CodePage& codePageOf(const VBProject& project) override;
  void asOneEdit(CodeModule& module, const std::function<void()>& edit) override;
  void report(const Diagnostic& fault) override { report_(fault); }
  std::uint32_t buttonFaceColour() override;

  /// The main window alone has a procedure. Its own one does nothing, as Qt sees to the messages.
  WindowProcedure setWindowProcedure(std::uintptr_t window, WindowProcedure procedure) override;

  /// Sends a message to the main window's procedure.
  void send(WindowMessage message);

 private:
  QWidget& window_;
  WorkbenchIde& ide_;
  DiagnosticSink report_;
  QtToolkit toolkit_;
  WindowProcedure procedure_ = [](std::uint32_t) {};
};

}  // namespace tamrikon
