#include "connect/connect_items.h"

#include "connect/item_faces.h"

namespace tamrikon {

const connect::Item connect::kItems[] = {
    {"Add-Ins", 0, false, "Tamrikon", nullptr, 101, true, &connect::MenuHandler,
     &connect::MenuHandler_Click, "Cannot create Tamrikon item in Add-Ins menu."},
    {"Code Window", 0, false, "Add Tamrikon Comment",
     "Insert Tamrikon comment directly into source code", 102, true, &connect::CodeMenuHandler,
     &connect::CodeMenuHandler_Click,
     "Cannot create 'Add Tamrikon Comment' item in code window pop-up menu."},
    {"Code Window", 0, false, "Comment Editor", "Start Comment editor for selected element", 103,
     false, &connect::CodeMenuHandlerEditor, &connect::CodeMenuHandlerEditor_Click,
     "Cannot create 'Comment editor' item in code window pop-up menu."},
    {"Code Window", 0, false, "Copy Selection as Code",
     "Copy selected lines to clipboard as code example", 100, false, &connect::CodeMenuHandlerCopy,
     &connect::CodeMenuHandlerCopy_Click,
     "Cannot create 'Copy as Code' item in code window pop-up menu."},
    {"Standard", 2, true, "Tamrikon", "Tamrikon", 101, true, &connect::ToolbarHandler,
     &connect::ToolbarHandler_Click, "Cannot create Tamrikon item in Standard toolbar."},
};

CommandBarControl* connect::AddToAddInCommandBar(const std::string& sCaption) {
  return add(kItems[0], sCaption);
}

CommandBarControl* connect::AddToCodeWindowCommandBar(const std::string& sCaption) {
  return add(kItems[1], sCaption);
}

CommandBarControl* connect::AddToCodeWindowCommandBarEDITOR(const std::string& sCaption) {
  return add(kItems[2], sCaption);
}

CommandBarControl* connect::AddToCodeWindowCommandBarCOPY(const std::string& sCaption) {
  return add(kItems[3], sCaption);
}

CommandBarControl* connect::AddToStandardToolbar(const std::string& sCaption) {
  return add(kItems[4], sCaption);
}

CommandBar* connect::barOf(const Item& item) const {
  CommandBar* bar = nullptr;
  attempt([&] { bar = VBInstance->CommandBars().Item(item.bar); });
  if (bar == nullptr && item.otherBar != 0) bar = VBInstance->CommandBars().Item(item.otherBar);
  return bar;
}

CommandBarControl* connect::add(const Item& item, const std::string& sCaption) {
  CommandBarControl* result = nullptr;
  attempt([&] {
    if (VBInstance == nullptr) return;
    CommandBar* const bar = barOf(item);
    if (bar == nullptr) return;
    CommandBarControls& controls = bar->Controls();
    const int before = item.isBeforeLast ? controls.Count() : 0;
    CommandBarControl& control = controls.Add(ControlType::button, before);
    items_.push_back({&item, &control});  // from here on it has to be deleted, whatever follows
    control.setCaption(sCaption);
    if (item.toolTip != nullptr) control.setToolTipText(item.toolTip);
    control.PasteFace(loadFace(item.bitmap, buttonFaceColour_));
    result = &control;
  });
  return result;
}

}  // namespace tamrikon
