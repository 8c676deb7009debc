// Searching for a text within lines.
#pragma once

#include <QString>
#include <vector>

namespace tamrikon {

struct TextSearch {
  QString text;
  bool matchesCase = false;
  bool wholeWord = false;

  /// Position of the first match in `line` that begins at `from` or behind, or -1. An empty text is
  /// found nowhere.
  qsizetype findIn(QStringView line, qsizetype from = 0) const;

  /// Position of the last match that ends at `end` or before, or -1.
  qsizetype findLastIn(QStringView line, qsizetype end) const;

 private:
  bool fits(QStringView line, qsizetype position) const;
  Qt::CaseSensitivity sensitivity() const {
    return matchesCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
  }
};

}  // namespace tamrikon
