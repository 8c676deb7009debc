// Finding macro calls in a text.
#pragma once

#include <cstddef>
#include <string_view>

#include "base/diagnostic.h"
#include "template/macro_slots.h"
#include "template/macro_text.h"

namespace tamrikon {

struct ParsedName {
  std::string_view name;
  bool isClosed = false;  // whether a "$" ends the name; otherwise it is a wrong name

  /// The length of the whole call in bytes, from the opening "$" on.
  std::size_t length() const { return 1 + name.size() + (isClosed ? 1 : 0); }
};

/// The macro name behind the "$" with which `text` begins. It ends at the next "$", or as a wrong
/// name at a blank, a tab, a CR or the end.
ParsedName parseMacroName(std::string_view text);

/// Whether a DOLIST or IFNOTEMPTY takes this macro.
bool isArgument(const MacroName& name);

/// What is wrong with a name; `written` is the name with its opening "$".
Diagnostic wrongNameWarning(std::string_view written);

/// Finds the calls of `text.text` ("$$" is none) and the parts of its DOLISTs and IFNOTEMPTYs.
/// Its length must be below 4 GiB.
void scanMacros(MacroText& text, MacroSlots& slots);

}  // namespace tamrikon
