#include "base/case_folding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <optional>

#include "base/utf8.h"

namespace tamrikon {
namespace {

/// The letters `first`, `first` + `stride`, ... `last` have their lower case `offset` further on.
struct CaseRange {
  char32_t first;
  char32_t last;
  std::int32_t offset;
  std::uint32_t stride;
};

// The simple lower-case mappings above ASCII of the Unicode Character Database (field 13 of
// UnicodeData.txt, version 14), as runs.
constexpr CaseRange kRanges[] = {
    {0x00C0, 0x00D6, 32, 1},     {0x00D8, 0x00DE, 32, 1},     {0x0100, 0x012E, 1, 2},
    {0x0130, 0x0130, -199, 1},   {0x0132, 0x0136, 1, 2},      {0x0139, 0x0147, 1, 2},
    {0x014A, 0x0176, 1, 2},      {0x0178, 0x0178, -121, 1},   {0x0179, 0x017D, 1, 2},
    {0x0181, 0x0181, 210, 1},    {0x0182, 0x0184, 1, 2},      {0x0186, 0x0186, 206, 1},
    {0x0187, 0x0187, 1, 1},      {0x0189, 0x018A, 205, 1},    {0x018B, 0x018B, 1, 1},
    {0x018E, 0x018E, 79, 1},     {0x018F, 0x018F, 202, 1},    {0x0190, 0x0190, 203, 1},
    {0x0191, 0x0191, 1, 1},      {0x0193, 0x0193, 205, 1},    {0x0194, 0x0194, 207, 1},
    {0x0196, 0x0196, 211, 1},    {0x0197, 0x0197, 209, 1},    {0x0198, 0x0198, 1, 1},
    {0x019C, 0x019C, 211, 1},    {0x019D, 0x019D, 213, 1},    {0x019F, 0x019F, 214, 1},
    {0x01A0, 0x01A4, 1, 2},      {0x01A6, 0x01A6, 218, 1},    {0x01A7, 0x01A7, 1, 1},
    {0x01A9, 0x01A9, 218, 1},    {0x01AC, 0x01AC, 1, 1},      {0x01AE, 0x01AE, 218, 1},
    {0x01AF, 0x01AF, 1, 1},      {0x01B1, 0x01B2, 217, 1},    {0x01B3, 0x01B5, 1, 2},
    {0x01B7, 0x01B7, 219, 1},    {0x01B8, 0x01B8, 1, 1},      {0x01BC, 0x01BC, 1, 1},
    {0x01C4, 0x01C4, 2, 1},      {0x01C5, 0x01C5, 1, 1},      {0x01C7, 0x01C7, 2, 1},
    {0x01C8, 0x01C8, 1, 1},      {0x01CA, 0x01CA, 2, 1},      {0x01CB, 0x01DB, 1, 2},
    {0x01DE, 0x01EE, 1, 2},      {0x01F1, 0x01F1, 2, 1},      {0x01F2, 0x01F4, 1, 2},
    {0x01F6, 0x01F6, -97, 1},    {0x01F7, 0x01F7, -56, 1},    {0x01F8, 0x021E, 1, 2},
    {0x0220, 0x0220, -130, 1},   {0x0222, 0x0232, 1, 2},      {0x023A, 0x023A, 10795, 1},
    {0x023B, 0x023B, 1, 1},      {0x023D, 0x023D, -163, 1},   {0x023E, 0x023E, 10792, 1},
    {0x0241, 0x0241, 1, 1},      {0x0243, 0x0243, -195, 1},   {0x0244, 0x0244, 69, 1},
    {0x0245, 0x0245, 71, 1},     {0x0246, 0x024E, 1, 2},      {0x0370, 0x0372, 1, 2},
    {0x0376, 0x0376, 1, 1},      {0x037F, 0x037F, 116, 1},    {0x0386, 0x0386, 38, 1},
    {0x0388, 0x038A, 37, 1},     {0x038C, 0x038C, 64, 1},     {0x038E, 0x038F, 63, 1},
    {0x0391, 0x03A1, 32, 1},     {0x03A3, 0x03AB, 32, 1},     {0x03CF, 0x03CF, 8, 1},
    {0x03D8, 0x03EE, 1, 2},      {0x03F4, 0x03F4, -60, 1},    {0x03F7, 0x03F7, 1, 1},
    {0x03F9, 0x03F9, -7, 1},     {0x03FA, 0x03FA, 1, 1},      {0x03FD, 0x03FF, -130, 1},
    {0x0400, 0x040F, 80, 1},     {0x0410, 0x042F, 32, 1},     {0x0460, 0x0480, 1, 2},
    {0x048A, 0x04BE, 1, 2},      {0x04C0, 0x04C0, 15, 1},     {0x04C1, 0x04CD, 1, 2},
    {0x04D0, 0x052E, 1, 2},      {0x0531, 0x0556, 48, 1},     {0x10A0, 0x10C5, 7264, 1},
    {0x10C7, 0x10C7, 7264, 1},   {0x10CD, 0x10CD, 7264, 1},   {0x13A0, 0x13EF, 38864, 1},
    {0x13F0, 0x13F5, 8, 1},      {0x1C90, 0x1CBA, -3008, 1},  {0x1CBD, 0x1CBF, -3008, 1},
    {0x1E00, 0x1E94, 1, 2},      {0x1E9E, 0x1E9E, -7615, 1},  {0x1EA0, 0x1EFE, 1, 2},
    {0x1F08, 0x1F0F, -8, 1},     {0x1F18, 0x1F1D, -8, 1},     {0x1F28, 0x1F2F, -8, 1},
    {0x1F38, 0x1F3F, -8, 1},     {0x1F48, 0x1F4D, -8, 1},     {0x1F59, 0x1F5F, -8, 2},
    {0x1F68, 0x1F6F, -8, 1},     {0x1F88, 0x1F8F, -8, 1},     {0x1F98, 0x1F9F, -8, 1},
    {0x1FA8, 0x1FAF, -8, 1},     {0x1FB8, 0x1FB9, -8, 1},     {0x1FBA, 0x1FBB, -74, 1},
    {0x1FBC, 0x1FBC, -9, 1},     {0x1FC8, 0x1FCB, -86, 1},    {0x1FCC, 0x1FCC, -9, 1},
    {0x1FD8, 0x1FD9, -8, 1},     {0x1FDA, 0x1FDB, -100, 1},   {0x1FE8, 0x1FE9, -8, 1},
    {0x1FEA, 0x1FEB, -112, 1},   {0x1FEC, 0x1FEC, -7, 1},     {0x1FF8, 0x1FF9, -128, 1},
    {0x1FFA, 0x1FFB, -126, 1},   {0x1FFC, 0x1FFC, -9, 1},     {0x2126, 0x2126, -7517, 1},
    {0x212A, 0x212A, -8383, 1},  {0x212B, 0x212B, -8262, 1},  {0x2132, 0x2132, 28, 1},
    {0x2160, 0x216F, 16, 1},     {0x2183, 0x2183, 1, 1},      {0x24B6, 0x24CF, 26, 1},
    {0x2C00, 0x2C2F, 48, 1},     {0x2C60, 0x2C60, 1, 1},      {0x2C62, 0x2C62, -10743, 1},
    {0x2C63, 0x2C63, -3814, 1},  {0x2C64, 0x2C64, -10727, 1}, {0x2C67, 0x2C6B, 1, 2},
    {0x2C6D, 0x2C6D, -10780, 1}, {0x2C6E, 0x2C6E, -10749, 1}, {0x2C6F, 0x2C6F, -10783, 1},
    {0x2C70, 0x2C70, -10782, 1}, {0x2C72, 0x2C72, 1, 1},      {0x2C75, 0x2C75, 1, 1},
    {0x2C7E, 0x2C7F, -10815, 1}, {0x2C80, 0x2CE2, 1, 2},      {0x2CEB, 0x2CED, 1, 2},
    {0x2CF2, 0x2CF2, 1, 1},      {0xA640, 0xA66C, 1, 2},      {0xA680, 0xA69A, 1, 2},
    {0xA722, 0xA72E, 1, 2},      {0xA732, 0xA76E, 1, 2},      {0xA779, 0xA77B, 1, 2},
    {0xA77D, 0xA77D, -35332, 1}, {0xA77E, 0xA786, 1, 2},      {0xA78B, 0xA78B, 1, 1},
    {0xA78D, 0xA78D, -42280, 1}, {0xA790, 0xA792, 1, 2},      {0xA796, 0xA7A8, 1, 2},
    {0xA7AA, 0xA7AA, -42308, 1}, {0xA7AB, 0xA7AB, -42319, 1}, {0xA7AC, 0xA7AC, -42315, 1},
    {0xA7AD, 0xA7AD, -42305, 1}, {0xA7AE, 0xA7AE, -42308, 1}, {0xA7B0, 0xA7B0, -42258, 1},
    {0xA7B1, 0xA7B1, -42282, 1}, {0xA7B2, 0xA7B2, -42261, 1}, {0xA7B3, 0xA7B3, 928, 1},
    {0xA7B4, 0xA7C2, 1, 2},      {0xA7C4, 0xA7C4, -48, 1},    {0xA7C5, 0xA7C5, -42307, 1},
    {0xA7C6, 0xA7C6, -35384, 1}, {0xA7C7, 0xA7C9, 1, 2},      {0xA7D0, 0xA7D0, 1, 1},
    {0xA7D6, 0xA7D8, 1, 2},      {0xA7F5, 0xA7F5, 1, 1},      {0xFF21, 0xFF3A, 32, 1},
    {0x10400, 0x10427, 40, 1},   {0x104B0, 0x104D3, 40, 1},   {0x10570, 0x1057A, 39, 1},
    {0x1057C, 0x1058A, 39, 1},   {0x1058C, 0x10592, 39, 1},   {0x10594, 0x10595, 39, 1},
    {0x10C80, 0x10CB2, 64, 1},   {0x118A0, 0x118BF, 32, 1},   {0x16E40, 0x16E5F, 32, 1},
    {0x1E900, 0x1E921, 34, 1},
};

struct CasePair {
  char32_t small;
  char32_t capital;
};

// Small letters whose capital has another small letter; U+00DF, which has none of its own, but is
// that of U+1E9E.
constexpr CasePair kOtherCapitals[] = {
    {0x00B5, 0x039C}, {0x00DF, 0x00DF}, {0x0131, 0x0049}, {0x017F, 0x0053}, {0x01C5, 0x01C4},
    {0x01C8, 0x01C7}, {0x01CB, 0x01CA}, {0x01F2, 0x01F1}, {0x0345, 0x0399}, {0x03C2, 0x03A3},
    {0x03D0, 0x0392}, {0x03D1, 0x0398}, {0x03D5, 0x03A6}, {0x03D6, 0x03A0}, {0x03F0, 0x039A},
    {0x03F1, 0x03A1}, {0x03F5, 0x0395}, {0x1C80, 0x0412}, {0x1C81, 0x0414}, {0x1C82, 0x041E},
    {0x1C83, 0x0421}, {0x1C84, 0x0422}, {0x1C85, 0x0422}, {0x1C86, 0x042A}, {0x1C87, 0x0462},
    {0x1C88, 0xA64A}, {0x1E9B, 0x1E60}, {0x1FBE, 0x0399},
};

char asciiLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

bool isAsciiByte(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

/// The code point at `offset` in lower case; moves `offset` behind it.
char32_t readLowered(std::string_view text, std::size_t& offset) {
  if (isAsciiByte(text[offset])) {
    return static_cast<unsigned char>(asciiLower(text[offset++]));
  }
  return lowerCase(readCodePoint(text, offset));
}

/// Where the match of `prefix` at `offset` of `text` ends, or npos if there is none.
std::size_t matchEnd(std::string_view text, std::size_t offset, std::string_view prefix) {
  std::size_t inPrefix = 0;
  while (inPrefix < prefix.size()) {
    if (offset == text.size() || readLowered(text, offset) != readLowered(prefix, inPrefix)) {
      return std::string_view::npos;
    }
  }
  return offset;
}

constexpr std::uint64_t kEachByte = 0x0101010101010101U;
constexpr std::uint64_t kTopBits = 0x80 * kEachByte;

/// The up to eight bytes at `offset` as one number.
std::uint64_t wordAt(std::string_view text, std::size_t offset) {
  std::uint64_t word = 0;
  const std::size_t left = text.size() - offset;
  if (left >= sizeof word) {
    std::memcpy(&word, text.data() + offset, sizeof word);  // of a known size, it is one move
  } else {
    std::memcpy(&word, text.data() + offset, left);
  }
  return word;
}

/// Eight ASCII characters, the capitals in lower case.
std::uint64_t lowerWord(std::uint64_t word) {
  const std::uint64_t fromA = word + (0x80 - 'A') * kEachByte;
  const std::uint64_t behindZ = word + (0x7F - 'Z') * kEachByte;
  return word | ((fromA & ~behindZ & kTopBits) >> 2);
}

std::uint64_t mixed(std::uint64_t hash, std::uint64_t word) {
  hash = (hash ^ word) * 0x9E3779B97F4A7C15U;
  return hash ^ (hash >> 32);
}

std::uint64_t hashOfLowered(std::string_view text) {
  std::uint64_t hash = text.size();
  for (std::size_t offset = 0; offset < text.size(); offset += sizeof hash) {
    hash = mixed(hash, wordAt(text, offset));
  }
  return hash;
}

/// hashOfLowered() of the text in lower case; nothing if it isn't all ASCII.
std::optional<std::uint64_t> hashOfAscii(std::string_view text) {
  std::uint64_t hash = text.size();
  for (std::size_t offset = 0; offset < text.size(); offset += sizeof hash) {
    const std::uint64_t word = wordAt(text, offset);
    if ((word & kTopBits) != 0) return std::nullopt;
    hash = mixed(hash, lowerWord(word));
  }
  return hash;
}

/// The first character that has this one as its small letter; itself if there is none.
char32_t capitalOf(char32_t codePoint) {
  for (const CaseRange& range : kRanges) {
    const std::int64_t upper = static_cast<std::int64_t>(codePoint) - range.offset;
    if (upper >= range.first && upper <= range.last && (upper - range.first) % range.stride == 0) {
      return static_cast<char32_t>(upper);
    }
  }
  return codePoint;
}

/// Appends the text with each character replaced by what `map` makes of it.
void appendMapped(std::string& result, std::string_view text, char32_t (*map)(char32_t)) {
  std::size_t offset = 0;
  while (offset < text.size()) {
    const std::size_t start = offset;
    const char32_t codePoint = readCodePoint(text, offset);
    if (offset - start == 1 && codePoint >= 0x80) {
      result += text[start];  // a stray byte stays what it is
    } else {
      appendCodePoint(result, map(codePoint));
    }
  }
}

}  // namespace

char32_t lowerCase(char32_t codePoint) {
  if (codePoint < 0x80) return static_cast<unsigned char>(asciiLower(static_cast<char>(codePoint)));
  const auto* range =
      std::lower_bound(std::begin(kRanges), std::end(kRanges), codePoint,
                       [](const CaseRange& r, char32_t wanted) { return r.last < wanted; });
  if (range == std::end(kRanges) || codePoint < range->first ||
      (codePoint - range->first) % range->stride != 0) {
    return codePoint;
  }
  return static_cast<char32_t>(static_cast<std::int64_t>(codePoint) + range->offset);
}

char32_t upperCase(char32_t codePoint) {
  if (codePoint >= 'a' && codePoint <= 'z') return codePoint - ('a' - 'A');
  if (codePoint < 0x80) return codePoint;
  for (const CasePair& pair : kOtherCapitals) {
    if (pair.small == codePoint) return pair.capital;
  }
  return capitalOf(codePoint);
}

bool isCaseless(char32_t codePoint) {
  if (codePoint < 0x80) {
    return lowerCase(codePoint) == codePoint && (codePoint < 'a' || codePoint > 'z');
  }
  return lowerCase(codePoint) == codePoint && capitalOf(codePoint) == codePoint;
}

std::string lowered(std::string_view text) {
  std::string result;
  appendLowered(result, text);
  return result;
}

void appendLowered(std::string& result, std::string_view text) {
  const std::size_t begin = result.size();
  result += text;
  char* const copy = result.data() + begin;
  unsigned char bits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    bits |= static_cast<unsigned char>(text[i]);
    copy[i] = asciiLower(text[i]);
  }
  if (bits < 0x80) return;  // as it mostly is
  result.resize(begin);
  appendMapped(result, text, lowerCase);
}

std::string uppered(std::string_view text) {
  std::string result;
  appendMapped(result, text, upperCase);
  return result;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
  if (a == b) return true;  // as it mostly is
  return matchEnd(a, 0, b) == a.size();
}

bool startsWithIgnoringCase(std::string_view text, std::string_view prefix) {
  return matchEnd(text, 0, prefix) != std::string_view::npos;
}

std::string replaceIgnoringCase(std::string_view text, std::string_view find,
                                std::string_view with) {
  std::string result;
  if (find.empty()) return std::string(text);
  result.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    const std::size_t end = matchEnd(text, offset, find);
    if (end != std::string_view::npos) {
      result += with;
      offset = end;
      continue;
    }
    const std::size_t start = offset;
    readCodePoint(text, offset);
    result += text.substr(start, offset - start);
  }
  return result;
}

std::size_t CaseInsensitiveHash::operator()(std::string_view key) const {
  if (const std::optional<std::uint64_t> hash = hashOfAscii(key)) {
    return static_cast<std::size_t>(*hash);
  }
  // A letter beyond ASCII can have one of ASCII as its lower case.
  std::string folded;
  for (std::size_t offset = 0; offset < key.size();) {
    appendCodePoint(folded, readLowered(key, offset));
  }
  return static_cast<std::size_t>(hashOfLowered(folded));
}

}  // namespace tamrikon
