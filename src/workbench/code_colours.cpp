#include "workbench/code_colours.h"

namespace tamrikon {
namespace {

QColor mixed(const QColor& one, const QColor& other, double shareOfOther) {
  const auto mix = [&](int a, int b) { return static_cast<int>(a + (b - a) * shareOfOther + 0.5); };
  return {mix(one.red(), other.red()), mix(one.green(), other.green()),
          mix(one.blue(), other.blue())};
}

}  // namespace

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < 128;
}

CodeColours codeColours(const QPalette& palette) {
  const QColor base = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  const bool dark = isDark(palette);
  const auto choose = [&](QRgb onLight, QRgb onDark) { return QColor(dark ? onDark : onLight); };
  CodeColours colours;
  colours.keyword = choose(0x1740B0, 0x82AAFF);
  colours.comment = choose(0x2E7035, 0x86B98A);
  colours.marker = colours.comment;
  colours.tag = choose(0x8A4B00, 0xE6B566);
  colours.string = choose(0xA0261C, 0xE79A86);
  colours.number = choose(0x0B6A78, 0x7FD1DE);
  colours.directive = choose(0x7A2E9E, 0xC79BE8);
  colours.currentLine = mixed(base, palette.color(QPalette::Highlight), dark ? 0.16 : 0.09);
  colours.lineNumber = mixed(base, text, 0.58);
  colours.margin = mixed(base, text, 0.05);
  return colours;
}

}  // namespace tamrikon
