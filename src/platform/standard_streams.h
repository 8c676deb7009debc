// What the program's standard streams are connected to.
#pragma once

namespace tamrikon {

/// Whether somebody reads the error stream on a terminal.
bool errorStreamIsTerminal();

/// Whether somebody can answer a question: both the input and the error stream are a terminal.
bool canAskOnTerminal();

}  // namespace tamrikon
