#include <unistd.h>

#include "platform/standard_streams.h"

namespace tamrikon {

bool errorStreamIsTerminal() {
  return ::isatty(STDERR_FILENO) != 0;
}

}  // namespace tamrikon
