// What the program's standard streams are connected to.
#pragma once

namespace tamrikon {

/// Whether somebody reads the error stream on a terminal.
bool errorStreamIsTerminal();

}  // namespace tamrikon
