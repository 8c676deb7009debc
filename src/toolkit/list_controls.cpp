#include "toolkit/list_controls.h"

#include <algorithm>
#include <utility>

#include "base/case_folding.h"

namespace tamrikon {
namespace {

int indexOf(const std::vector<std::string>& items, const std::string& text) {
  const auto found = std::find(items.begin(), items.end(), text);
  return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

std::string textAt(const std::vector<std::string>& items, int index) {
  return index < 0 ? "" : items[static_cast<std::size_t>(index)];
}

}  // namespace

void ListBox::setItems(std::vector<std::string> items) {
  items_ = std::move(items);
  selected_ = -1;
  changed();
}

void ListBox::add(const std::string& item) {
  items_.push_back(item);
  changed();
}

void ListBox::remove(int index) {
  items_.erase(items_.begin() + index);
  if (index == selected_) {
    selected_ = -1;
  } else if (index < selected_) {
    --selected_;
  }
  changed();
}

void ListBox::select(int index) {
  set(selected_, index);
}

std::string ListBox::selectedText() const {
  return textAt(items_, selected_);
}

int ListBox::find(const std::string& text) const {
  return indexOf(items_, text);
}

void ListBox::userSelected(int index) {
  selected_ = index;
  call(onClick);
}

void ListBox::userActivated(int index) {
  selected_ = index;
  call(onDblClick);
}

FileList::FileList(Dialog& dialog, std::string name, std::string pattern, Lister lister)
    : ListBox(dialog, std::move(name)), pattern_(std::move(pattern)), lister_(std::move(lister)) {}

void FileList::setPath(const std::string& path) {
  path_ = path;
  const std::string ending = pattern_.substr(pattern_.find('*') + 1);
  std::vector<std::string> names = lister_(path);
  names.erase(std::remove_if(
                  names.begin(), names.end(),
                  [&](const std::string& name) {
                    return name.size() < ending.size() ||
                           !equalIgnoringCase(
                               std::string_view(name).substr(name.size() - ending.size()), ending);
                  }),
              names.end());
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    return std::pair(lowered(a), a) < std::pair(lowered(b), b);
  });
  setItems(std::move(names));
}

void CheckList::setItems(std::vector<Item> items) {
  items_ = std::move(items);
  changed();
}

void CheckList::setChecked(int index, bool checked) {
  bool& field = items_[static_cast<std::size_t>(index)].checked;
  if (field == checked) return;
  field = checked;
  if (peer() != nullptr) peer()->itemChanged(index);
}

void CheckList::userChecked(int index, bool checked) {
  items_[static_cast<std::size_t>(index)].checked = checked;
  if (onItemCheck) onItemCheck(index);
}

void ComboBox::setItems(std::vector<std::string> items) {
  items_ = std::move(items);
  selected_ = -1;
  text_.clear();
  changed();
}

void ComboBox::select(int index) {
  text_ = textAt(items_, index);
  selected_ = index;
  changed();
}

void ComboBox::setText(const std::string& text) {
  selected_ = indexOf(items_, text);
  text_ = selected_ >= 0 || editable_ ? text : "";
  changed();
}

void ComboBox::userSelected(int index) {
  selected_ = index;
  text_ = textAt(items_, index);
  call(onClick);
}

void ComboBox::userEdited(const std::string& text) {
  text_ = text;
  selected_ = indexOf(items_, text);
  call(onChange);
}

}  // namespace tamrikon
