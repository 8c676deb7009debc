#include "com/guid_text.h"

#include <cstdio>

namespace tamrikon {
namespace {

constexpr std::string_view kPattern = "{########-####-####-####-############}";

int digitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

}  // namespace

std::string textOf(const GUID& guid) {
  char text[kPattern.size() + 1];
  std::snprintf(text, sizeof text, "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                static_cast<unsigned>(guid.Data1), guid.Data2, guid.Data3, guid.Data4[0],
                guid.Data4[1], guid.Data4[2], guid.Data4[3], guid.Data4[4], guid.Data4[5],
                guid.Data4[6], guid.Data4[7]);
  return text;
}

std::optional<GUID> guidOf(std::string_view text) {
  if (text.size() != kPattern.size()) return std::nullopt;
  std::uint8_t bytes[16] = {};
  std::size_t digits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int digit = digitOf(text[i]);
    if (kPattern[i] == '#' ? digit < 0 : text[i] != kPattern[i]) return std::nullopt;
    if (kPattern[i] != '#') continue;
    std::uint8_t& byte = bytes[digits++ / 2];
    byte = static_cast<std::uint8_t>(byte * 16 + digit);
  }
  GUID guid{};
  for (int i = 0; i < 4; ++i) guid.Data1 = guid.Data1 << 8 | bytes[i];
  guid.Data2 = static_cast<std::uint16_t>(bytes[4] << 8 | bytes[5]);
  guid.Data3 = static_cast<std::uint16_t>(bytes[6] << 8 | bytes[7]);
  for (int i = 0; i < 8; ++i) guid.Data4[i] = bytes[8 + i];
  return guid;
}

}  // namespace tamrikon
