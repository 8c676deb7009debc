#include "platform/display.h"
#include "platform/process.h"

namespace tamrikon {

bool hasDisplay() {
  ProcessServices& processes = nativeProcessServices();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    if (!processes.GetEnvironmentVariable(name).empty()) return true;
  }
  return false;
}

}  // namespace tamrikon
