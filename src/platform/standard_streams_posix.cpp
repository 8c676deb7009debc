#include <unistd.h>

#include "platform/standard_streams.h"

namespace tamrikon {

bool outputStreamIsTerminal() {
  return ::isatty(STDOUT_FILENO) != 0;
}

bool errorStreamIsTerminal() {
  return ::isatty(STDERR_FILENO) != 0;
}

bool canAskOnTerminal() {
  return ::isatty(STDIN_FILENO) != 0 && errorStreamIsTerminal();
}

std::optional<std::string> readTerminalLine() {
  // A C++ stream would read on after a signal.
  std::string line;
  for (char c = 0; ::read(STDIN_FILENO, &c, 1) == 1;) {
    if (c == '\n') return line;
    line += c;
  }
  return std::nullopt;
}

}  // namespace tamrikon
