// Where classes and add-ins stand in the user's registry.
#pragma once

#include <cstdint>
#include <string>

#include "com/guid_text.h"

namespace tamrikon {

/// Its subkeys are the add-ins of the IDE, by programmatic identifier.
inline const std::string kAddInsKey = "Software\\Microsoft\\Visual Basic\\6.0\\Addins";

inline std::string addInKey(const std::string& progId) {
  return kAddInsKey + '\\' + progId;
}

inline std::string classKey(REFCLSID clsid) {
  return "Software\\Classes\\CLSID\\" + textOf(clsid);
}

inline std::string progIdKey(const std::string& progId) {
  return "Software\\Classes\\" + progId;
}

/// An add-in's value of that name, and its bits.
constexpr auto kLoadBehaviorName = "LoadBehavior";
enum LoadBehavior : std::uint32_t { kUnloaded = 0, kLoaded = 1, kLoadsOnStartup = 2 };

}  // namespace tamrikon
