// What programs keep for a user between two runs: texts by section and key.
#pragma once

#include <string>

namespace tamrikon {

class UserSettings {
 public:
  virtual ~UserSettings() = default;

  /// `defaultValue` if nothing is kept there.
  virtual std::string get(const std::string& section, const std::string& key,
                          const std::string& defaultValue) const = 0;

  /// Whether it could be kept.
  virtual bool set(const std::string& section, const std::string& key,
                   const std::string& value) = 0;
};

/// Tamrikon's own, in the registry, where Visual Basic programs have theirs. It has no state.
UserSettings& nativeUserSettings();

}  // namespace tamrikon
