#include "vb/names.h"

#include <algorithm>

#include "vb/scanning.h"

namespace tamrikon {

std::string knownName(std::string_view writtenName) {
  constexpr std::string_view kForbidden = "/\\:*?\"<>|\x7F";
  std::string name(writtenName);
  std::replace_if(
      name.begin(), name.end(),
      [&](char c) {
        return static_cast<unsigned char>(c) < 0x20 || kForbidden.find(c) != std::string_view::npos;
      },
      '_');
  return name;
}

std::string identifierFrom(std::string_view name) {
  std::string identifier(name);
  std::replace_if(
      identifier.begin(), identifier.end(), [](char c) { return !isNameCharacter(c); }, '_');
  return identifier;
}

}  // namespace tamrikon
