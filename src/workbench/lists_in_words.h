// Lists in messages.
#pragma once

#include <QStringList>

namespace tamrikon {

/// One below the other; of many, the first ones and how many there are besides.
inline QString inLines(const QStringList& names) {
  constexpr qsizetype kMost = 12;
  if (names.size() <= kMost) return names.join('\n');
  return QStringList(names.first(kMost - 1)).join('\n') +
         QString("\nand %1 more").arg(names.size() - kMost + 1);
}

}  // namespace tamrikon
