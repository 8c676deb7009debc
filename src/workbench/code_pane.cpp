#include "workbench/code_pane.h"

namespace tamrikon {

void WorkbenchPane::open() {
  if (window_ != nullptr) return;
  window_ = new CodeWindow(module_);
  tabs_.add(*window_);
  window_->editor().setSelection(selection_);
  window_->editor().setTopLine(topLine_);
}

Selection WorkbenchPane::GetSelection() const {
  return window_ == nullptr ? selection_ : window_->editor().selection();
}

void WorkbenchPane::SetSelection(const Selection& selection) {
  if (window_ == nullptr) {
    selection_ = selection;
  } else {
    window_->editor().setSelection(selection);
  }
}

void WorkbenchPane::setTopLine(int line) {
  if (window_ == nullptr) {
    topLine_ = line;
  } else {
    window_->editor().setTopLine(line);
  }
}

void WorkbenchPane::Close() {
  if (window_ == nullptr) return;
  selection_ = window_->editor().selection();
  topLine_ = window_->editor().topLine();
  CodeWindow& window = *window_;
  window_ = nullptr;
  tabs_.closeWindow(window);
}

void WorkbenchPane::SetFocus() {
  open();
  tabs_.bringToFront(*window_);
  window_->editor().setFocus();
}

}  // namespace tamrikon
