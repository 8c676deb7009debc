#include "addin_host/own_component.h"

#include "addin_host/com_server.h"
#include "addin_host/registered_add_ins.h"
#include "base/paths.h"
#include "com/component.h"
#include "com/registry_keys.h"
#include "platform/file_system.h"
#include "platform/program_path.h"

namespace tamrikon {

std::string ownComponent() {
  return joinPath(folderOf(programFolder()), TAMRIKON_COMPONENT);
}

std::optional<std::string> registerOwnComponent(const Registry& registry) {
  const std::string path = ownComponent();
  if (!nativeFileSystem().isFile(path)) return std::nullopt;
  const auto known = registeredClass(registry, kConnectProgId);
  const bool isAddIn = registry.number(addInKey(kConnectProgId), kLoadBehaviorName).has_value();
  if (known && known->library == path && isAddIn) return std::nullopt;
  std::string why;
  const auto server = ComServer::load(path, why);
  if (!server) return "Tamrikon cannot be loaded. " + why;
  if (SUCCEEDED(server->registerServer())) return std::nullopt;
  return "Tamrikon cannot be registered: " + userRegistryPlace() + " cannot be written.";
}

}  // namespace tamrikon
