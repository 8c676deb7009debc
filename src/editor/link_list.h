// A list of links with the boxes and buttons that change it, as the tab "References" has two.
#pragma once

#include <string>

#include "editor/field_text.h"
#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/list_controls.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class LinkList {
 public:
  /// What the controls are called.
  struct Names {
    std::string list, toolTip, link, label, add, remove, select;
  };

  /// `field` follows the list. Both must outlive it.
  LinkList(Dialog& dialog, FieldList& field, const Names& names);

  /// Shows the field, with the first item selected and empty boxes.
  void show();

  /// Puts the selected item into the boxes, unless they hold something.
  void fillBoxes();

  /// Appends what the boxes hold, unless there is no link.
  void addLink();

  /// Appends an item as it is.
  void append(const std::string& item);
  void selectLast();

  ListBox list;
  Label linkLabel;
  TextBox link;
  CommandButton select;
  Label labelLabel;
  TextBox label;
  CommandButton add;
  CommandButton remove;

 private:
  void showSelected();
  void removeSelected();
  void takeItems();

  FieldList& field_;
};

}  // namespace tamrikon
