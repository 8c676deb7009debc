#include "settings/settings_text.h"

#include <charconv>

#include "base/text.h"

namespace tamrikon {
namespace {

constexpr std::string_view kEolToken = "^tmkEOL^";

}  // namespace

std::string_view settingFromBool(bool value) {
  return value ? "1" : "0";
}

bool settingToBool(std::string_view text) {
  return text != "0";
}

std::optional<std::int16_t> settingToInt(std::string_view text) {
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return std::nullopt;
  }
  std::int16_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

std::string escapeEOL(std::string_view text) {
  return replaceAll(text, "\r\n", kEolToken);
}

std::string unescapeEOL(std::string_view text) {
  return replaceAll(text, kEolToken, "\r\n");
}

}  // namespace tamrikon
