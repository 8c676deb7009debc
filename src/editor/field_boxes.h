// Text boxes that are views of fields.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "toolkit/text_controls.h"

namespace tamrikon {

class FieldBoxes {
 public:
  /// The box writes its text to the field when it loses the focus. Both must outlive this object.
  void add(TextBox& box, std::string& field) {
    box.onLostFocus = [&box, &field] { field = box.text(); };
    boxes_.emplace_back(&box, &field);
  }

  void show() const {
    for (const auto& [box, field] : boxes_) box->setText(*field);
  }

  /// Also takes over what stands in the box that has the focus.
  void take() const {
    for (const auto& [box, field] : boxes_) *field = box->text();
  }

 private:
  std::vector<std::pair<TextBox*, std::string*>> boxes_;
};

}  // namespace tamrikon
