#include "addin_host/registered_add_ins.h"

#include "com/registry_keys.h"

namespace tamrikon {

std::vector<RegisteredAddIn> registeredAddIns(const Registry& registry) {
  std::vector<RegisteredAddIn> addIns;
  for (const std::string& progId : registry.subkeys(kAddInsKey)) {
    const std::string key = addInKey(progId);
    RegisteredAddIn addIn;
    addIn.progId = progId;
    addIn.friendlyName = registry.text(key, "FriendlyName");
    if (addIn.friendlyName.empty()) addIn.friendlyName = progId;
    addIn.description = registry.text(key, "Description");
    addIn.loadsOnStartup =
        (registry.number(key, kLoadBehaviorName).value_or(0) & kLoadsOnStartup) != 0;
    addIns.push_back(std::move(addIn));
  }
  return addIns;
}

FileError setLoadBehavior(Registry& registry, const std::string& progId, bool loaded,
                          bool onStartup) {
  const std::uint32_t value = (loaded ? kLoaded : 0U) | (onStartup ? kLoadsOnStartup : 0U);
  return registry.put({{addInKey(progId), kLoadBehaviorName, value}});
}

std::optional<RegisteredClass> registeredClass(const Registry& registry,
                                               const std::string& progId) {
  const std::optional<GUID> clsid = guidOf(registry.text(progIdKey(progId) + "\\CLSID", ""));
  if (!clsid) return std::nullopt;
  std::string library = registry.text(classKey(*clsid) + "\\InprocServer32", "");
  if (library.empty()) return std::nullopt;
  return RegisteredClass{*clsid, std::move(library)};
}

}  // namespace tamrikon
