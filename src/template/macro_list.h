// The value of a list macro: what a DOLIST walks.
#pragma once

#include <string>
#include <vector>

namespace tamrikon {

/// Text items, their fields divided by CR.
using MacroList = std::vector<std::string>;

}  // namespace tamrikon
