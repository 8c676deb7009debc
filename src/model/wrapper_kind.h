// The eight kinds of things that have a page, and what differs between them in one table.
#pragma once

#include <string_view>

#include "ide/ide.h"

namespace tamrikon {

enum class WrapperKind { method, event, propGet, propLet, propSet, variable, constant, module };

struct KindTraits {
  std::string_view className;  // the name of the wrapper class
  std::string_view linkMark;   // what the link of a property procedure ends in
  ProcKind procKind;           // which procedure of its name the wrapper stands for
  std::string_view word;       // in the index, behind the label
  std::string_view title;      // the same in the contents
  std::string_view section;    // of the template, for its page
  std::string_view contentsList;
};

/// `type` is that of the module that holds it: in a standard module methods are functions, and a
/// module's own kind goes by it.
const KindTraits& traitsOf(WrapperKind kind, ComponentType type);

bool isProperty(WrapperKind kind);

}  // namespace tamrikon
