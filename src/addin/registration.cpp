#include "addin/registration.h"

#include "com/component.h"
#include "com/registry_keys.h"
#include "platform/dynamic_library.h"

namespace tamrikon {
namespace {

constexpr auto kFriendlyName = "Tamrikon";
constexpr auto kDescription = "VB documentation generator.";

}  // namespace

std::string componentPath() {
  return libraryOf(reinterpret_cast<const void*>(&componentPath));
}

FileError registerComponent(Registry& registry, const std::string& path) {
  const std::string classes = classKey(CLSID_Connect);
  const std::string addIn = addInKey(kConnectProgId);
  std::vector<RegistryEntry> entries = {
      {classes, "", kFriendlyName},
      {classes + "\\InprocServer32", "", path},
      {classes + "\\InprocServer32", "ThreadingModel", "Apartment"},
      {classes + "\\ProgID", "", kConnectProgId},
      {progIdKey(kConnectProgId), "", kFriendlyName},
      {progIdKey(kConnectProgId) + "\\CLSID", "", textOf(CLSID_Connect)},
      {addIn, "FriendlyName", kFriendlyName},
      {addIn, "Description", kDescription},
      {addIn, "CommandLineSafe", 0U},
  };
  if (!registry.number(addIn, kLoadBehaviorName)) {
    entries.push_back(
        {addIn, kLoadBehaviorName, static_cast<std::uint32_t>(kLoadsOnStartup | kLoaded)});
  }
  return registry.put(entries);
}

FileError unregisterComponent(Registry& registry) {
  return registry.remove(
      {classKey(CLSID_Connect), progIdKey(kConnectProgId), addInKey(kConnectProgId)});
}

}  // namespace tamrikon
