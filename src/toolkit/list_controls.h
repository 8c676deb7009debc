// Controls that show a list of texts. Items count from 0, and -1 is none.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/control.h"

namespace tamrikon {

class ListBox : public Control {
 public:
  using Control::Control;

  const std::vector<std::string>& items() const { return items_; }
  int count() const { return static_cast<int>(items_.size()); }

  /// Replaces all items; none is selected then.
  void setItems(std::vector<std::string> items);
  void clear() { setItems({}); }
  void add(const std::string& item);

  /// An item that goes while it is selected leaves none selected.
  void remove(int index);

  int selected() const { return selected_; }
  void select(int index);

  /// The text of the selected item, or empty.
  std::string selectedText() const;

  /// The first item that is exactly `text`, or -1.
  int find(const std::string& text) const;

  /// An item has been clicked, or reached with the keyboard.
  std::function<void()> onClick;
  std::function<void()> onDblClick;

  // For renderers.
  void userSelected(int index);
  void userActivated(int index);

 private:
  std::vector<std::string> items_;
  int selected_ = -1;
};

/// A list of the files of one folder.
class FileList final : public ListBox {
 public:
  /// Gives the names of the files in a folder, in any order; none for a folder that isn't there.
  using Lister = std::function<std::vector<std::string>(const std::string& folder)>;

  /// `pattern` is "*" and an extension, such as "*.txt", compared without regard to case.
  FileList(Dialog& dialog, std::string name, std::string pattern, Lister lister);

  const std::string& path() const { return path_; }

  /// Points at a folder and reads it, sorted without regard to case. Nothing is selected then.
  void setPath(const std::string& path);

 private:
  std::string pattern_;
  Lister lister_;
  std::string path_;
};

class CheckList final : public Control {
 public:
  using Control::Control;

  struct Item {
    std::string text;
    bool checked = false;
  };

  const std::vector<Item>& items() const { return items_; }
  int count() const { return static_cast<int>(items_.size()); }
  void setItems(std::vector<Item> items);
  void clear() { setItems({}); }

  bool isChecked(int index) const { return items_[static_cast<std::size_t>(index)].checked; }
  void setChecked(int index, bool checked);

  /// The user has checked or unchecked that item.
  std::function<void(int index)> onItemCheck;

  // For renderers.
  void userChecked(int index, bool checked);

 private:
  std::vector<Item> items_;
};

/// A drop-down list; an editable one takes other texts too.
class ComboBox final : public Control {
 public:
  using Control::Control;

  const std::vector<std::string>& items() const { return items_; }
  void setItems(std::vector<std::string> items);

  /// The selected item; -1 for none, and for a text that was typed.
  int selected() const { return selected_; }
  void select(int index);

  const std::string& text() const { return text_; }

  /// Selects the first item that is exactly `text`. Without one, an editable box shows the text,
  /// and the other one nothing.
  void setText(const std::string& text);

  bool isEditable() const { return editable_; }
  void setEditable(bool editable) { set(editable_, editable); }

  /// An item has been chosen.
  std::function<void()> onClick;

  /// A text has been typed.
  std::function<void()> onChange;

  // For renderers.
  void userSelected(int index);
  void userEdited(const std::string& text);

 private:
  std::vector<std::string> items_;
  int selected_ = -1;
  std::string text_;
  bool editable_ = false;
};

}  // namespace tamrikon
