#include "workbench/tamrikon_add_in.h"

#include <utility>

#include "compiler/store.h"
#include "host/edit_group.h"
#include "workbench/workbench_window.h"

namespace tamrikon {

TamrikonAddIn::TamrikonAddIn(WorkbenchWindow& window, std::string dataFolder)
    : window_(window),
      toolkit_(&window),
      session_(toolkit_, nativeFileSystem(), nativeProcessServices(), std::move(dataFolder)),
      connect_(session_, *this, *this) {
  window.onProjectOpened = [this](HostIde& ide) { connect_.setIde(&ide); };
  window.onProjectClosed = [this](HostIde&) { connect_.setIde(nullptr); };
  if (window.ide() != nullptr) connect_.setIde(window.ide());
  addItem("Add-Ins", "Tamrikon", [this] { showOptions(); });
  addItem("Code Window", "Comment Editor", [this] { editComment(); });
}

TamrikonAddIn::~TamrikonAddIn() {
  window_.onProjectOpened = nullptr;
  window_.onProjectClosed = nullptr;
}

void TamrikonAddIn::addItem(const char* bar, const char* caption, std::function<void()> click) {
  CommandBarControl& item =
      window_.screen().commandBars().Item(bar)->Controls().Add(ControlType::button);
  item.setCaption(caption);
  handlers_.push_back(window_.screen().events().CommandBarEvents(&item));
  handlers_.back()->Click = std::move(click);
}

VBE& TamrikonAddIn::application() {
  if (window_.ide() == nullptr) throw IdeError("no project is open");
  return *window_.ide();
}

const CodePage& TamrikonAddIn::codePageOf(const VBProject& project) {
  if (window_.ide() == nullptr) throw IdeError("no project is open");
  return window_.ide()->codePageOf(project);
}

void TamrikonAddIn::asOneEdit(CodeModule& module, const std::function<void()>& edit) {
  const EditGroup group(static_cast<HostModule&>(module));
  edit();
}

std::uint32_t TamrikonAddIn::buttonFaceColour() {
  return window_.palette().color(QPalette::Button).rgb() & 0xFFFFFF;
}

WindowProcedure TamrikonAddIn::setWindowProcedure(std::uintptr_t, WindowProcedure) {
  throw IdeError("the window keeps its procedure");
}

std::string TamrikonAddIn::get(const std::string&, const std::string&,
                               const std::string& defaultValue) const {
  return defaultValue;
}

bool TamrikonAddIn::set(const std::string&, const std::string&, const std::string&) {
  return false;
}

}  // namespace tamrikon
