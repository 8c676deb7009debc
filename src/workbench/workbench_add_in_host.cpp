#include "workbench/workbench_add_in_host.h"

#include <utility>

#include "source/edit_group.h"

namespace tamrikon {

const CodePage& WorkbenchAddInHost::codePageOf(const VBProject& project) {
  return ide_.opened().codePageOf(project);
}

void WorkbenchAddInHost::asOneEdit(CodeModule& module, const std::function<void()>& edit) {
  const EditGroup group(static_cast<HostModule&>(module));
  edit();
}

std::uint32_t WorkbenchAddInHost::buttonFaceColour() {
  constexpr QRgb kWithoutAlpha = 0xFFFFFF;
  return window_.palette().color(QPalette::Button).rgb() & kWithoutAlpha;
}

WindowProcedure WorkbenchAddInHost::setWindowProcedure(std::uintptr_t window,
                                                       WindowProcedure procedure) {
  if (window == 0 || window != window_.winId()) throw IdeError("there is no such window");
  return std::exchange(procedure_, std::move(procedure));
}

void WorkbenchAddInHost::send(WindowMessage message) {
  const WindowProcedure procedure = procedure_;  // which may put another one in its place
  if (procedure) procedure(static_cast<std::uint32_t>(message));
}

}  // namespace tamrikon
