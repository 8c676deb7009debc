// The per-user registry: values under names, in keys that form a tree. A key is written as a path,
// such as "Software\Tamrikon". Keys and names ignore case; the name "" is the key's default value.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/file_error.h"

namespace tamrikon {

using RegistryValue = std::variant<std::string, std::uint32_t>;

struct RegistryEntry {
  std::string key;
  std::string name;
  RegistryValue value;
};

class Registry {
 public:
  virtual ~Registry() = default;

  /// Nothing if it isn't there, or is of another kind than these two.
  virtual std::optional<RegistryValue> get(const std::string& key,
                                           const std::string& name) const = 0;

  /// The names of the keys right below `key`.
  virtual std::vector<std::string> subkeys(const std::string& key) const = 0;

  /// Writes all of them or none, making the keys that are missing. A key, name or value that the
  /// registry can't hold, such as one with a NUL, is a typeMismatch.
  virtual FileError put(const std::vector<RegistryEntry>& entries) = 0;

  /// Takes the keys away, with all below them, all of them or none. One that isn't there is gone
  /// already.
  virtual FileError remove(const std::vector<std::string>& keys) = 0;

  /// A text, or empty.
  std::string text(const std::string& key, const std::string& name) const;

  /// A number, or nothing.
  std::optional<std::uint32_t> number(const std::string& key, const std::string& name) const;
};

/// That of the user, the tree below HKEY_CURRENT_USER. It has no state of its own.
Registry& userRegistry();

/// Where it is kept, for people to read.
std::string userRegistryPlace();

}  // namespace tamrikon
