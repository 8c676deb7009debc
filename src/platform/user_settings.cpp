#include "platform/user_settings.h"

#include "platform/registry.h"

namespace tamrikon {
namespace {

std::string keyOf(const std::string& section) {
  return "Software\\VB and VBA Program Settings\\Tamrikon\\" + section;
}

class RegistrySettings final : public UserSettings {
 public:
  std::string get(const std::string& section, const std::string& key,
                  const std::string& defaultValue) const override {
    const auto value = userRegistry().get(keyOf(section), key);
    const auto* text = value ? std::get_if<std::string>(&*value) : nullptr;
    return text == nullptr ? defaultValue : *text;
  }

  bool set(const std::string& section, const std::string& key, const std::string& value) override {
    return userRegistry().put({{keyOf(section), key, value}}) == FileError::none;
  }
};

}  // namespace

UserSettings& nativeUserSettings() {
  static RegistrySettings settings;
  return settings;
}

}  // namespace tamrikon
