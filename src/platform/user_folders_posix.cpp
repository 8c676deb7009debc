#include "base/paths.h"
#include "platform/process.h"
#include "platform/user_folders.h"

namespace tamrikon {
namespace {

/// The folder that `variable` names, or `standard` in the home folder.
std::string userFolder(const std::string& variable, std::string_view standard) {
  ProcessServices& processes = nativeProcessServices();
  const std::string configured = processes.GetEnvironmentVariable(variable);
  // A relative one is to be ignored.
  if (configured.starts_with('/')) return std::string(withoutTrailingSeparator(configured));
  const std::string home = processes.GetEnvironmentVariable("HOME");
  return home.starts_with('/') ? joinPath(withoutTrailingSeparator(home), standard) : "";
}

}  // namespace

std::string userConfigFolder() {
  return userFolder("XDG_CONFIG_HOME", ".config");
}

std::string userStateFolder() {
  return userFolder("XDG_STATE_HOME", ".local/state");
}

}  // namespace tamrikon
