// How single values stand in the settings file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tamrikon {

/// The first line of a settings file.
constexpr std::string_view kSettingsHeader = "#Tamrikon Project Settings#";

/// "1" for true, "0" for false.
std::string_view settingFromBool(bool value);

/// False for the exact text "0" alone.
bool settingToBool(std::string_view text);

/// A number of 16 bits from an optional sign and digits, or nothing.
std::optional<std::int16_t> settingToInt(std::string_view text);

/// Every CR LF as the token "^tmkEOL^", and back.
std::string escapeEOL(std::string_view text);
std::string unescapeEOL(std::string_view text);

}  // namespace tamrikon
