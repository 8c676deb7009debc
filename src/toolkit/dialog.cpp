#include "toolkit/dialog.h"

#include "toolkit/control.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

Control::Control(Dialog& dialog, std::string name, std::string caption, std::string toolTip)
    : name_(std::move(name)), caption_(std::move(caption)), toolTip_(std::move(toolTip)) {
  dialog.controls_.push_back(this);
}

void Control::setFocus() {
  if (peer_ != nullptr) peer_->takeFocus();
}

void Dialog::setCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  if (peer_ != nullptr) peer_->captionChanged();
}

void Dialog::showModal() {
  if (shown_) return;
  shown_ = true;
  try {
    onLoad();
    // Loading may have found that there is nothing to show.
    if (shown_) toolkit_.runModal(*this);
  } catch (...) {
    unload();
    throw;
  }
  unload();
}

void Dialog::unload() {
  shown_ = false;
  onUnload();
}

void Dialog::close() {
  if (!shown_) return;
  shown_ = false;
  if (peer_ != nullptr) peer_->closed();
}

}  // namespace tamrikon
