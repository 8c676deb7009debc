// Names as they are written in source and project files, and the form in which the program knows
// them, which is safe in a path.
#pragma once

#include <string>
#include <string_view>

namespace tamrikon {

/// A name as it is known: "_" stands for each control character and for what a file name can't
/// hold.
std::string knownName(std::string_view writtenName);

/// `name` with "_" for each character that an identifier can't hold.
std::string identifierFrom(std::string_view name);

}  // namespace tamrikon
