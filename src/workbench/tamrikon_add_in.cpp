#include "workbench/tamrikon_add_in.h"

#include <utility>

#include "compiler/store.h"
#include "editor/open_comment_editor.h"
#include "host/edit_group.h"
#include "workbench/workbench_window.h"

namespace tamrikon {

TamrikonAddIn::TamrikonAddIn(WorkbenchWindow& window, std::string dataFolder)
    : window_(window),
      toolkit_(&window),
      session_(toolkit_, nativeFileSystem(), nativeProcessServices(), std::move(dataFolder)),
      connect_(session_) {
  session_.codePageOf = [&window](const VBProject& project) -> const CodePage& {
    return window.ide()->codePageOf(project);
  };
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

void TamrikonAddIn::editComment() {
  if (window_.ide() == nullptr) return;
  openCommentEditor(session_, *window_.ide(),
                    [](CodeModule& module, const std::function<void()>& edit) {
                      const EditGroup group(static_cast<HostModule&>(module));
                      edit();
                    });
}

}  // namespace tamrikon
