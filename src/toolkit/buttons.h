// Controls that are pressed, checked or chosen.
#pragma once

#include <functional>
#include <vector>

#include "toolkit/control.h"

namespace tamrikon {

/// What the Enter or Esc key presses. A renderer moves the focus to a button before it tells of a
/// press, however that came about, so that the box that was left has had its onLostFocus.
enum class ButtonRole { plain, default_, cancel };

class CommandButton final : public Control {
 public:
  using Control::Control;

  ButtonRole role() const { return role_; }
  void setRole(ButtonRole role) { set(role_, role); }

  std::function<void()> onClick;

  // For renderers.
  void userClicked() { call(onClick); }

 private:
  ButtonRole role_ = ButtonRole::plain;
};

class CheckBox final : public Control {
 public:
  using Control::Control;

  bool isChecked() const { return checked_; }
  void setChecked(bool checked) { set(checked_, checked); }

  std::function<void()> onClick;

  // For renderers.
  void userToggled(bool checked) {
    checked_ = checked;
    call(onClick);
  }

 private:
  bool checked_ = false;
};

class OptionButton;

/// The option buttons of which one at a time is selected. It must outlive them.
class OptionGroup {
 public:
  const std::vector<OptionButton*>& options() const { return options_; }

 private:
  friend class OptionButton;
  std::vector<OptionButton*> options_;
};

class OptionButton final : public Control {
 public:
  OptionButton(Dialog& dialog, OptionGroup& group, std::string name, std::string caption = "",
               std::string toolTip = "");

  bool isSelected() const { return selected_; }

  /// Takes the selection from the others of the group.
  void select();

  OptionGroup& group() const { return group_; }

  std::function<void()> onClick;

  // For renderers.
  void userSelected() {
    select();
    call(onClick);
  }

 private:
  OptionGroup& group_;
  bool selected_ = false;
};

}  // namespace tamrikon
