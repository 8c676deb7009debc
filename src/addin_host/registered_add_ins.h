// The add-ins that are registered for the user.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "com/com.h"
#include "platform/registry.h"

namespace tamrikon {

struct RegisteredAddIn {
  std::string progId;
  std::string friendlyName;  // the programmatic identifier if it has no other
  std::string description;
  bool loadsOnStartup = false;
};

std::vector<RegisteredAddIn> registeredAddIns(const Registry& registry);

/// Keeps whether the add-in is loaded, and whether it is to be loaded on start-up.
FileError setLoadBehavior(Registry& registry, const std::string& progId, bool loaded,
                          bool onStartup);

struct RegisteredClass {
  CLSID clsid{};
  std::string library;  // its path
};

/// Nothing if no such class is registered.
std::optional<RegisteredClass> registeredClass(const Registry& registry, const std::string& progId);

}  // namespace tamrikon
