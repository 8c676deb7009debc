// What the program's standard streams are connected to.
#pragma once

#include <optional>
#include <string>

namespace tamrikon {

/// Whether somebody reads the output stream on a terminal.
bool outputStreamIsTerminal();

/// Whether somebody reads the error stream on a terminal.
bool errorStreamIsTerminal();

/// Whether somebody can answer a question: both the input and the error stream are a terminal.
bool canAskOnTerminal();

/// The next line of the standard input, without its line end; nothing at its end, and when Ctrl+C
/// has been noted meanwhile.
std::optional<std::string> readTerminalLine();

}  // namespace tamrikon
