#include "base/utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tamrikon {
namespace {

/// The length of the well-formed sequence at `offset`, or 0.
std::size_t sequenceLength(std::string_view text, std::size_t offset) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[offset + i]); };
  const std::size_t left = text.size() - offset;
  const auto continues = [&](std::size_t i, unsigned low = 0x80, unsigned high = 0xBF) {
    return i < left && byte(i) >= low && byte(i) <= high;
  };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return continues(1) ? 2 : 0;
  if (lead >= 0xE0 && lead <= 0xEF) {
    const unsigned low = lead == 0xE0 ? 0xA0 : 0x80;
    const unsigned high = lead == 0xED ? 0x9F : 0xBF;
    return continues(1, low, high) && continues(2) ? 3 : 0;
  }
  if (lead >= 0xF0 && lead <= 0xF4) {
    const unsigned low = lead == 0xF0 ? 0x90 : 0x80;
    const unsigned high = lead == 0xF4 ? 0x8F : 0xBF;
    return continues(1, low, high) && continues(2) && continues(3) ? 4 : 0;
  }
  return 0;
}

}  // namespace

bool isAscii(std::string_view text) {
  std::size_t offset = 0;
  for (; offset + 32 <= text.size(); offset += 32) {
    std::uint64_t words[4];
    std::memcpy(words, text.data() + offset, sizeof words);
    if (((words[0] | words[1] | words[2] | words[3]) & 0x8080808080808080U) != 0) return false;
  }
  return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(offset), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string_view withoutUtf8Mark(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  return bytes;
}

bool isValidUtf8(std::string_view bytes) {
  for (std::size_t offset = 0; offset < bytes.size();) {
    const std::size_t length = sequenceLength(bytes, offset);
    if (length == 0) return false;
    offset += length;
  }
  return true;
}

std::size_t codePointCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

char32_t readCodePoint(std::string_view text, std::size_t& offset) {
  const auto byte = [&](std::size_t i) {
    return static_cast<char32_t>(static_cast<unsigned char>(text[offset + i]));
  };
  char32_t result = byte(0);
  const std::size_t length = sequenceLength(text, offset);
  if (length == 2) result = ((byte(0) & 0x1F) << 6) | (byte(1) & 0x3F);
  if (length == 3) {
    result = ((byte(0) & 0x0F) << 12) | ((byte(1) & 0x3F) << 6) | (byte(2) & 0x3F);
  }
  if (length == 4) {
    result = ((byte(0) & 0x07) << 18) | ((byte(1) & 0x3F) << 12) | ((byte(2) & 0x3F) << 6) |
             (byte(3) & 0x3F);
  }
  offset += std::max<std::size_t>(length, 1);
  return result;
}

void appendCodePoint(std::string& text, char32_t codePoint) {
  const auto put = [&](char32_t bits) {
    text += static_cast<char>(static_cast<unsigned char>(bits));
  };
  if (codePoint < 0x80) {
    put(codePoint);
  } else if (codePoint < 0x800) {
    put(0xC0 | (codePoint >> 6));
    put(0x80 | (codePoint & 0x3F));
  } else if (codePoint < 0x10000) {
    put(0xE0 | (codePoint >> 12));
    put(0x80 | ((codePoint >> 6) & 0x3F));
    put(0x80 | (codePoint & 0x3F));
  } else {
    put(0xF0 | (codePoint >> 18));
    put(0x80 | ((codePoint >> 12) & 0x3F));
    put(0x80 | ((codePoint >> 6) & 0x3F));
    put(0x80 | (codePoint & 0x3F));
  }
}

}  // namespace tamrikon
