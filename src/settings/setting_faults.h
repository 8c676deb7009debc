// What is wrong with settings, in words.
#pragma once

#include <string>
#include <string_view>

namespace tamrikon {

/// That there is no such key, and the one that may have been meant.
std::string faultOfKey(std::string_view key);

/// That the value isn't a number that a setting can have.
std::string faultOfNumber(std::string_view value);

}  // namespace tamrikon
