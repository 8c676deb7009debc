#include "platform/registry.h"

namespace tamrikon {

std::string Registry::text(const std::string& key, const std::string& name) const {
  const std::optional<RegistryValue> value = get(key, name);
  const auto* text = value ? std::get_if<std::string>(&*value) : nullptr;
  return text == nullptr ? std::string() : *text;
}

std::optional<std::uint32_t> Registry::number(const std::string& key,
                                              const std::string& name) const {
  const std::optional<RegistryValue> value = get(key, name);
  const auto* number = value ? std::get_if<std::uint32_t>(&*value) : nullptr;
  return number == nullptr ? std::nullopt : std::optional(*number);
}

}  // namespace tamrikon
