#include "editor/link_list.h"

#include <algorithm>

#include "base/text.h"

namespace tamrikon {

LinkList::LinkList(Dialog& dialog, FieldList& field, const Names& names)
    : list(dialog, names.list, "", names.toolTip),
      linkLabel(dialog, names.link + "Label", "Link:"),
      link(dialog, names.link),
      select(dialog, names.select, "..."),
      labelLabel(dialog, names.label + "Label", "Label:"),
      label(dialog, names.label),
      add(dialog, names.add, "Add"),
      remove(dialog, names.remove, "Remove"),
      field_(field) {
  list.onClick = [this] { showSelected(); };
  add.onClick = [this] { addLink(); };
  remove.onClick = [this] { removeSelected(); };
}

void LinkList::show() {
  list.setItems(field_);
  link.setText("");
  label.setText("");
  remove.setEnabled(list.count() > 0);
  if (list.count() > 0) list.select(0);
}

void LinkList::fillBoxes() {
  if (link.text().empty() && label.text().empty()) showSelected();
}

void LinkList::addLink() {
  if (trim(link.text()).empty()) return;
  append(linkItem(link.text(), label.text()));
  selectLast();
}

void LinkList::append(const std::string& item) {
  list.add(item);
  takeItems();
}

void LinkList::selectLast() {
  list.select(list.count() - 1);
}

void LinkList::showSelected() {
  remove.setEnabled(list.count() > 0);
  if (list.selected() < 0) return;
  const LinkAndLabel parts = splitLinkItem(list.selectedText());
  link.setText(parts.link);
  label.setText(parts.label);
}

void LinkList::removeSelected() {
  const int index = list.selected();
  if (index < 0) return;
  list.remove(index);
  list.select(std::min(index, list.count() - 1));
  takeItems();
}

void LinkList::takeItems() {
  field_ = list.items();
  remove.setEnabled(list.count() > 0);
}

}  // namespace tamrikon
