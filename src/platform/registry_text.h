// A registry as a text that people can read and edit, written as exported registry files are:
//
//   Windows Registry Editor Version 5.00
//
//   [HKEY_CURRENT_USER\Software\Tamrikon]
//   @="default value"
//   "Text"="C:\\Folder, a \"quoted\" word"
//   "Number"=dword:00000003
//
// Line ends within a value are written as \r and \n. Other lines, such as comments and values of
// other kinds, mean nothing here and keep their bytes and places.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace tamrikon {

class RegistryText {
 public:
  /// Without keys.
  RegistryText();

  /// Nothing if `bytes` aren't such a text.
  static std::optional<RegistryText> parse(std::string_view bytes);

  std::string bytes() const;

  // As Registry has them; below HKEY_CURRENT_USER.
  std::optional<RegistryValue> get(std::string_view key, std::string_view name) const;
  std::vector<std::string> subkeys(std::string_view key) const;
  void put(const RegistryEntry& entry);
  void remove(std::string_view key);

  /// Whether the entry can be written so that it is read again.
  static bool canHold(const RegistryEntry& entry);

 private:
  struct Place {
    std::size_t begin = 0;
    std::size_t end = 0;  // behind the last of the lines
  };

  std::vector<Place> sectionsOf(std::string_view key) const;
  std::optional<Place> valueIn(const Place& section, std::string_view name) const;
  std::size_t sectionEnd(std::size_t header) const;
  std::size_t endOfText(const Place& section) const;

  std::vector<std::string> lines_;  // without their ends
  std::string_view lineEnd_ = "\n";
};

}  // namespace tamrikon
