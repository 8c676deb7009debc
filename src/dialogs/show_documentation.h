// Opens what a compile has made.
#pragma once

#include "compiler/store.h"
#include "toolkit/prompter.h"

namespace tamrikon {

/// Opens the file that the template names as the finished documentation; `compiled` may be null.
/// False, with a message, if that can't be done.
bool showDocumentation(store* compiled, Prompter& prompter);

}  // namespace tamrikon
