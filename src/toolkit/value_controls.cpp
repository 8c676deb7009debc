#include "toolkit/value_controls.h"

#include <algorithm>
#include <charconv>
#include <string>

#include "toolkit/text_controls.h"

namespace tamrikon {

void SpinControl::userStepped(int steps) {
  const std::string& text = buddy_.text();
  int value = minimum_;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) {
    value = minimum_;
  } else {
    value = std::clamp(value, minimum_, maximum_) + steps;
  }
  buddy_.setText(std::to_string(std::clamp(value, minimum_, maximum_)));
  call(onChange);
}

}  // namespace tamrikon
