#include "toolkit/buttons.h"

#include <utility>

namespace tamrikon {

OptionButton::OptionButton(Dialog& dialog, OptionGroup& group, std::string name,
                           std::string caption, std::string toolTip)
    : Control(dialog, std::move(name), std::move(caption), std::move(toolTip)), group_(group) {
  group_.options_.push_back(this);
}

void OptionButton::select() {
  for (OptionButton* option : group_.options_) option->set(option->selected_, option == this);
}

}  // namespace tamrikon
