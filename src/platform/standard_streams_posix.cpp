#include <unistd.h>

#include "platform/standard_streams.h"

namespace tamrikon {

bool errorStreamIsTerminal() {
  return ::isatty(STDERR_FILENO) != 0;
}

bool canAskOnTerminal() {
  return ::isatty(STDIN_FILENO) != 0 && errorStreamIsTerminal();
}

}  // namespace tamrikon
