#include "workbench/text_search.h"

namespace tamrikon {
namespace {

bool isWordCharacter(QChar c) {
  return c.isLetterOrNumber() || c == '_' || c.isSurrogate();
}

}  // namespace

bool TextSearch::fits(QStringView line, qsizetype position) const {
  if (!wholeWord) return true;
  const qsizetype end = position + text.size();
  // An end of the text that belongs to no word needs no border.
  const bool joinsBefore =
      position > 0 && isWordCharacter(line[position - 1]) && isWordCharacter(line[position]);
  const bool joinsBehind =
      end < line.size() && isWordCharacter(line[end]) && isWordCharacter(line[end - 1]);
  return !joinsBefore && !joinsBehind;
}

qsizetype TextSearch::findIn(QStringView line, qsizetype from) const {
  if (text.isEmpty()) return -1;
  for (;;) {
    const qsizetype position = line.indexOf(text, from, sensitivity());
    if (position < 0 || fits(line, position)) return position;
    from = position + 1;
  }
}

qsizetype TextSearch::findLastIn(QStringView line, qsizetype end) const {
  if (text.isEmpty()) return -1;
  for (qsizetype from = end - text.size(); from >= 0;) {
    const qsizetype position = line.lastIndexOf(text, from, sensitivity());
    if (position < 0 || fits(line, position)) return position;
    from = position - 1;
  }
  return -1;
}

}  // namespace tamrikon
