#include "platform/line_breaks.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tamrikon {
namespace {

using Word = std::uint64_t;

constexpr Word kEachByte = 0x0101010101010101U;
constexpr Word kLowBits = 0x7F * kEachByte;

/// The bytes up to and with the first CR in memory, or 0 if there is none.
std::size_t lengthOfLine(Word word) {
  const Word others = word ^ '\r' * kEachByte;  // a byte of it is 0 for a CR
  // Its high bits; no sum of two low parts reaches the next byte.
  const Word returns = ~(((others & kLowBits) + kLowBits) | others | kLowBits);
  if (returns == 0) return 0;
  const int bitsBefore = std::endian::native == std::endian::little ? std::countr_zero(returns)
                                                                    : std::countl_zero(returns);
  return static_cast<std::size_t>(bitsBefore) / 8 + 1;
}

/// Writes `text` to `to`, which has room for twice its length. The end of what was written.
char* copyWithLineBreaks(std::string_view text, char* to, Word& bits) {
  const char* at = text.data();
  const char* const end = at + text.size();
  while (end - at >= static_cast<std::ptrdiff_t>(sizeof(Word))) {
    Word word;
    std::memcpy(&word, at, sizeof word);
    std::copy_n(at, sizeof word, to);
    bits |= word;
    const std::size_t line = lengthOfLine(word);
    const std::size_t taken = line == 0 ? sizeof word : line;
    at += taken;
    to += taken;
    if (line != 0) *to++ = '\n';
  }
  for (; at != end; ++at) {
    bits |= static_cast<unsigned char>(*at);
    *to++ = *at;
    if (*at == '\r') *to++ = '\n';
  }
  return to;
}

}  // namespace

bool appendWithLineBreaks(std::string& bytes, std::string_view text) {
  constexpr std::size_t kPiece = 4096;
  constexpr std::size_t kFairLine = 16;
  // A large text would otherwise be there several times while the bytes grow.
  bytes.reserve(bytes.size() + text.size() + text.size() / kFairLine);
  char broken[2 * kPiece];
  Word bits = 0;
  for (; !text.empty(); text.remove_prefix(std::min(kPiece, text.size()))) {
    const char* const end = copyWithLineBreaks(text.substr(0, kPiece), broken, bits);
    bytes.append(broken, static_cast<std::size_t>(end - broken));
  }
  return (bits & ~kLowBits) == 0;
}

}  // namespace tamrikon
