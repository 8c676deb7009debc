// The colours of source, for light and for dark palettes.
#pragma once

#include <QColor>
#include <QPalette>

namespace tamrikon {

struct CodeColours {
  QColor keyword;
  QColor comment;
  QColor marker;
  QColor tag;
  QColor string;
  QColor number;
  QColor directive;
  QColor currentLine;  // behind the line of the caret
  QColor lineNumber;
  QColor margin;  // behind the line numbers
};

/// Whether texts are light on dark.
bool isDark(const QPalette& palette);

CodeColours codeColours(const QPalette& palette);

}  // namespace tamrikon
