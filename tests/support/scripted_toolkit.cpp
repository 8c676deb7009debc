#include "support/scripted_toolkit.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tamrikon::test {

class User::Peer final : public ControlPeer {
 public:
  Peer(User& user, Control& control) : user_(user), control_(control) { control.attach(this); }
  ~Peer() override { control_.attach(nullptr); }
  void changed() override {}
  void takeFocus() override {
    if (user_.canReach(control_)) user_.moveFocus(control_);
  }

 private:
  User& user_;
  Control& control_;
};

User::User(Dialog& dialog) : dialog_(dialog), layout_(dialog.layout()) {
  walk(layout_, nullptr, 0);
  for (Control* control : dialog.controls()) {
    EXPECT_TRUE(places_.count(control)) << "the layout leaves out " << control->name();
    peers_.push_back(std::make_unique<Peer>(*this, *control));
  }
}

User::~User() = default;

void User::walk(const Layout& layout, const Layout* parent, std::size_t index) {
  parents_[&layout] = {parent, index};
  if (layout.control != nullptr) places_[layout.control] = &layout;
  for (const TextBox* box : layout.boxes) places_[box] = &layout;
  for (std::size_t i = 0; i < layout.children.size(); ++i) walk(layout.children[i], &layout, i);
}

bool User::canReach(const Control& control) const {
  if (!control.isVisible() || !control.isEnabled() || places_.count(&control) == 0) return false;
  const Layout* at = places_.at(&control);
  if (at->control != &control) {  // a box over a grid
    const auto* grid = static_cast<const Grid*>(at->control);
    if (grid->openedBox() != &control || !grid->isVisible() || !grid->isEnabled()) return false;
  }
  for (Place place = parents_.at(at); place.parent != nullptr; place = parents_.at(place.parent)) {
    const Layout& parent = *place.parent;
    if (parent.kind == Layout::Kind::tabs) {
      const auto& strip = static_cast<const TabStrip&>(*parent.control);
      if (strip.selected() != static_cast<int>(place.index)) return false;
    }
    const bool holds = parent.kind == Layout::Kind::tabs || parent.kind == Layout::Kind::frame;
    if (holds && !(parent.control->isVisible() && parent.control->isEnabled())) return false;
  }
  return true;
}

bool User::reach(Control& control) {
  const bool isThere = dialog_.isShown() && canReach(control);
  EXPECT_TRUE(isThere) << "a user can't reach " << control.name();
  if (isThere) moveFocus(control);
  return isThere;
}

void User::moveFocus(Control& control) {
  if (focused_ == &control) return;
  Control* left = std::exchange(focused_, &control);
  if (left != nullptr) left->userLostFocus();
  if (focused_ == &control) control.userGotFocus();
}

void User::click(CommandButton& button) {
  if (reach(button)) button.userClicked();
}

void User::check(CheckBox& box, bool checked) {
  if (reach(box) && box.isChecked() != checked) box.userToggled(checked);
}

void User::choose(OptionButton& option) {
  if (reach(option) && !option.isSelected()) option.userSelected();
}

void User::type(TextBox& box, const std::string& text) {
  EXPECT_FALSE(box.isReadOnly()) << box.name();
  if (reach(box)) box.userEdited(text);
}

void User::selectTab(TabStrip& strip, const std::string& key) {
  if (!reach(strip)) return;
  for (std::size_t i = 0; i < strip.tabs().size(); ++i) {
    if (strip.tabs()[i].key == key) return strip.userSelected(static_cast<int>(i));
  }
  ADD_FAILURE() << "there is no tab " << key;
}

void User::select(ListBox& list, const std::string& text) {
  const int index = list.find(text);
  EXPECT_GE(index, 0) << list.name() << " has no item " << text;
  if (index >= 0 && reach(list)) list.userSelected(index);
}

void User::doubleClick(ListBox& list, const std::string& text) {
  select(list, text);
  if (list.selected() >= 0) list.userActivated(list.selected());
}

void User::check(CheckList& list, const std::string& text, bool checked) {
  if (!reach(list)) return;
  for (int i = 0; i < list.count(); ++i) {
    if (list.items()[static_cast<std::size_t>(i)].text != text) continue;
    if (list.isChecked(i) != checked) list.userChecked(i, checked);
    return;
  }
  ADD_FAILURE() << list.name() << " has no item " << text;
}

void User::choose(ComboBox& box, const std::string& text) {
  if (!reach(box)) return;
  for (std::size_t i = 0; i < box.items().size(); ++i) {
    if (box.items()[i] == text) return box.userSelected(static_cast<int>(i));
  }
  ADD_FAILURE() << box.name() << " has no item " << text;
}

void User::type(ComboBox& box, const std::string& text) {
  EXPECT_TRUE(box.isEditable()) << box.name();
  if (reach(box)) box.userEdited(text);
}

void User::clickCell(Grid& grid, int row, int column) {
  if (reach(grid)) grid.userClicked(row, column);
}

void User::step(SpinControl& spin, int steps) {
  if (reach(spin)) spin.userStepped(steps);
}

void User::select(FolderTree& tree, const std::string& path) {
  if (reach(tree)) tree.userSelected(path);
}

CommandButton* User::buttonOf(ButtonRole role) const {
  for (Control* control : dialog_.controls()) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button != nullptr && button->role() == role && canReach(*button)) return button;
  }
  return nullptr;
}

void User::press(KeyEvent event) {
  dialog_.onKeyDown(event);
  if (!event.handled && focused_ != nullptr) focused_->userPressedKey(event);
  if (event.handled) return;
  if (event.key == Key::tab && event.control) {
    for (Control* control : dialog_.controls()) {
      auto* strip = dynamic_cast<TabStrip*>(control);
      if (strip != nullptr && canReach(*strip)) return strip->userNextTab();
    }
  }
  if (auto* grid = dynamic_cast<Grid*>(focused_); grid != nullptr && grid->rowCount() > 0) {
    const int row = grid->currentRow();
    if (event.key == Key::down && row + 1 < grid->rowCount()) {
      return grid->userMoved(row + 1, grid->currentColumn());
    }
    if (event.key == Key::up && row > 0) return grid->userMoved(row - 1, grid->currentColumn());
  }
  CommandButton* button = nullptr;
  if (event.key == Key::escape) button = buttonOf(ButtonRole::cancel);
  if (event.key == Key::enter) {
    button = dynamic_cast<CommandButton*>(focused_);
    if (button == nullptr) button = buttonOf(ButtonRole::default_);
  }
  if (button != nullptr) click(*button);
}

void User::focus(Control& control) {
  reach(control);
}

void User::clickCloseBox() {
  if (dialog_.onQueryClose()) dialog_.close();
}

ScriptedToolkit::~ScriptedToolkit() {
  for (const auto& [name, script] : scripts_) ADD_FAILURE() << name << " was never shown";
}

User& ScriptedToolkit::user() {
  if (users_.empty()) throw std::logic_error("no dialog is shown");
  return *users_.back();
}

void ScriptedToolkit::runModal(Dialog& dialog) {
  User user(dialog);
  users_.push_back(&user);
  dialog.onActivate();
  if (dialog.isShown()) {
    if (scripts_.empty() || scripts_.front().first != dialog.name()) {
      ADD_FAILURE() << "nobody is there for " << dialog.name();
    } else {
      const Script script = std::move(scripts_.front().second);
      scripts_.pop_front();
      script(user);
      EXPECT_FALSE(dialog.isShown()) << dialog.name() << " was left open";
    }
    dialog.close();
  }
  users_.pop_back();
}

MessageAnswer ScriptedToolkit::messageBox(const MessageBox& box) {
  boxes.push_back(box);
  if (answers.empty()) return MessageAnswer::cancel;
  const MessageAnswer answer = answers.front();
  answers.pop_front();
  return answer;
}

std::optional<std::string> ScriptedToolkit::chooseFile(const FileChoice& choice) {
  fileChoices.push_back(choice);
  if (files.empty()) return std::nullopt;
  std::optional<std::string> file = std::move(files.front());
  files.pop_front();
  return file;
}

}  // namespace tamrikon::test
