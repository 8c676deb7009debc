// Loads, connects and disconnects the add-ins of a host.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "addin_host/com_server.h"
#include "addin_host/host_application.h"
#include "addin_host/registered_add_ins.h"
#include "com/add_in_interfaces.h"
#include "com/com_ptr.h"
#include "platform/registry.h"

namespace tamrikon {

/// What fails is told in one line that names the add-in, and the library if that is to blame.
class AddIns {
 public:
  /// Both must outlive this object.
  AddIns(AddInHost& host, Registry& registry);

  /// Disconnects all, as the host shuts down.
  ~AddIns();
  AddIns(const AddIns&) = delete;
  AddIns& operator=(const AddIns&) = delete;

  std::vector<RegisteredAddIn> registered() const { return registeredAddIns(registry_); }
  bool isConnected(const std::string& progId) const;

  /// No effect on one that is connected already.
  std::optional<std::string> connect(const std::string& progId, vbext_ConnectMode mode);

  /// Unloads its library too, as soon as nothing of it is in use. No effect on one that isn't
  /// connected.
  void disconnect(const std::string& progId, vbext_RemoveMode mode);

  /// Connects those that want it; a line for each one that fails.
  std::vector<std::string> connectOnStartup();

  /// Keeps whether the add-in is to be loaded on start-up.
  std::optional<std::string> setLoadsOnStartup(const std::string& progId, bool onStartup);

 private:
  struct Connected {
    std::string progId;
    std::unique_ptr<ComServer> server;
    ComPtr<IAddIn> addIn;
  };

  std::optional<Connected> take(const std::string& progId);
  void drop(Connected entry);
  void dropServer(std::unique_ptr<ComServer> server);

  Registry& registry_;
  ComPtr<HostApplication> application_;
  std::vector<Connected> connected_;
  std::vector<std::unique_ptr<ComServer>> inUse_;  // of add-ins that are disconnected
};

}  // namespace tamrikon
