#include "base/paths.h"
#include "platform/process.h"
#include "platform/user_folders.h"

namespace tamrikon {

std::string userConfigFolder() {
  ProcessServices& processes = nativeProcessServices();
  const std::string configured = processes.GetEnvironmentVariable("XDG_CONFIG_HOME");
  // A relative one is to be ignored.
  if (configured.starts_with('/')) return std::string(withoutTrailingSeparator(configured));
  const std::string home = processes.GetEnvironmentVariable("HOME");
  return home.starts_with('/') ? joinPath(withoutTrailingSeparator(home), ".config") : "";
}

}  // namespace tamrikon
