// Plays the part of the user: dialogs are run by scripts that click, type and choose, and fail the
// test where a user couldn't.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/folder_tree.h"
#include "toolkit/list_controls.h"
#include "toolkit/toolkit.h"
#include "toolkit/value_controls.h"

namespace tamrikon::test {

/// What a user does in one dialog. Each operation moves the focus as a user would, and fails the
/// test, doing nothing, if its control is hidden, disabled or on a page that isn't shown.
class User {
 public:
  explicit User(Dialog& dialog);
  ~User();
  User(const User&) = delete;
  User& operator=(const User&) = delete;

  Dialog& dialog() const { return dialog_; }

  void click(CommandButton& button);
  void check(CheckBox& box, bool checked);
  void choose(OptionButton& option);

  /// In place of all text in the box.
  void type(TextBox& box, const std::string& text);
  void selectTab(TabStrip& strip, const std::string& key);
  void select(ListBox& list, const std::string& text);
  void doubleClick(ListBox& list, const std::string& text);
  void check(CheckList& list, const std::string& text, bool checked);
  void choose(ComboBox& box, const std::string& text);
  void type(ComboBox& box, const std::string& text);
  void clickCell(Grid& grid, int row, int column);
  void step(SpinControl& spin, int steps);
  void select(FolderTree& tree, const std::string& path);

  /// Goes the way of a key that isn't text: the dialog, the control with the focus, then what Esc,
  /// Enter, Ctrl+Tab and the arrows in a grid do everywhere.
  void press(KeyEvent event);
  void press(Key key) { press(KeyEvent{key}); }

  /// Clicks or tabs into a control.
  void focus(Control& control);
  void clickCloseBox();

  /// Whether the control is shown and enabled, with all that it stands in.
  bool canReach(const Control& control) const;
  Control* focused() const { return focused_; }

 private:
  friend class ScriptedToolkit;
  struct Place {
    const Layout* parent = nullptr;
    std::size_t index = 0;  // among the parent's children
  };
  class Peer;

  void walk(const Layout& layout, const Layout* parent, std::size_t index);
  bool reach(Control& control);
  void moveFocus(Control& control);
  CommandButton* buttonOf(ButtonRole role) const;

  Dialog& dialog_;
  Layout layout_;
  std::map<const Layout*, Place> parents_;
  std::map<const Control*, const Layout*> places_;
  std::vector<std::unique_ptr<Peer>> peers_;
  Control* focused_ = nullptr;
};

class ScriptedToolkit final : public Toolkit {
 public:
  using Script = std::function<void(User&)>;

  /// Runs the next dialog of that name. A dialog without a script, and one that its script leaves
  /// open, fails the test. Scripts that were never run do so too, at the end.
  void onDialog(const std::string& name, Script script) { scripts_.emplace_back(name, script); }
  ~ScriptedToolkit() override;

  std::vector<MessageBox> boxes;
  std::deque<MessageAnswer> answers;  // taken in order; then Cancel
  std::vector<FileChoice> fileChoices;
  std::deque<std::optional<std::string>> files;  // chosen, in order; then nothing
  std::string clipboard;
  std::vector<std::string> opened;  // documents
  bool canOpen = true;
  int beeps = 0;
  std::function<void()> onCheckpoint = [] {};

  /// Of the dialog in front; fails the test without one.
  User& user();

  void runModal(Dialog& dialog) override;
  MessageAnswer messageBox(const MessageBox& box) override;
  std::optional<std::string> chooseFileToOpen(const FileChoice& choice) override {
    return chooseFile(choice);
  }
  std::optional<std::string> chooseFileToSave(const FileChoice& choice) override {
    return chooseFile(choice);
  }
  void checkpoint() override { onCheckpoint(); }
  std::string clipboardText() override { return clipboard; }
  void setClipboardText(const std::string& text) override { clipboard = text; }
  bool openDocument(const std::string& path, const MessageBox& failure) override {
    opened.push_back(path);
    if (!canOpen) boxes.push_back(failure);
    return canOpen;
  }
  void beep() override { ++beeps; }

 private:
  std::optional<std::string> chooseFile(const FileChoice& choice);

  std::deque<std::pair<std::string, Script>> scripts_;
  std::vector<User*> users_;
};

}  // namespace tamrikon::test
