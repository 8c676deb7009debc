#include "workbench/block_text.h"

#include <algorithm>
#include <array>

#include "base/utf8.h"

namespace tamrikon {
namespace {

/// What ends a block or a visible line in a document.
constexpr std::array<char16_t, 6> kDividers{u'\n', u'\r', 0x2028, 0x2029, 0xFDD0, 0xFDD1};

/// The dividers stand as this one and those that follow it.
constexpr char16_t kFirstStandIn = 0xDC00;

bool isPairAt(QStringView text, qsizetype position) {
  return text[position].isHighSurrogate() && position + 1 < text.size() &&
         text[position + 1].isLowSurrogate();
}

/// The character that a unit stands for which is no half of a pair.
char32_t characterOf(char16_t unit) {
  const auto index = static_cast<std::size_t>(unit - kFirstStandIn);
  if (unit >= kFirstStandIn && index < kDividers.size()) return kDividers[index];
  return QChar::isSurrogate(unit) ? char32_t{QChar::ReplacementCharacter} : unit;
}

}  // namespace

QString toBlock(std::string_view line) {
  if (isAscii(line) && line.find_first_of("\r\n") == std::string_view::npos) {
    return QString::fromLatin1(line.data(), static_cast<qsizetype>(line.size()));
  }
  QString block;
  block.reserve(static_cast<qsizetype>(line.size()));
  // Not by QString::fromUtf8, which swallows U+FEFF at the start.
  for (std::size_t offset = 0; offset < line.size();) {
    const char32_t codePoint = readCodePoint(line, offset);
    const auto divider = std::find(kDividers.begin(), kDividers.end(), codePoint);
    if (divider != kDividers.end()) {
      block += QChar(static_cast<char16_t>(kFirstStandIn + (divider - kDividers.begin())));
    } else {
      block += QChar::fromUcs4(codePoint);
    }
  }
  return block;
}

std::string fromBlock(QStringView block) {
  std::string line;
  line.reserve(static_cast<std::size_t>(block.size()));
  for (qsizetype i = 0; i < block.size(); ++i) {
    const QChar unit = block[i];
    if (isPairAt(block, i)) {
      appendCodePoint(line, QChar::surrogateToUcs4(unit, block[++i]));
    } else {
      appendCodePoint(line, characterOf(unit.unicode()));
    }
  }
  return line;
}

QStringList toBlocks(std::string_view text) {
  QStringList blocks;
  for (std::size_t start = 0;;) {
    const std::size_t end = text.find("\r\n", start);
    blocks += toBlock(text.substr(start, end - start));
    if (end == std::string_view::npos) return blocks;
    start = end + 2;
  }
}

int columnAt(QStringView block, qsizetype position) {
  const qsizetype end = std::min(position, block.size());
  int column = 1;
  for (qsizetype i = 0; i < end; ++i, ++column) {
    if (isPairAt(block, i)) ++i;
  }
  return column;
}

int positionAt(QStringView block, int column) {
  qsizetype position = 0;
  for (int i = 1; i < column && position < block.size(); ++i) {
    position += isPairAt(block, position) ? 2 : 1;
  }
  return static_cast<int>(position);
}

}  // namespace tamrikon
