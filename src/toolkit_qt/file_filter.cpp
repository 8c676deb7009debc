#include "toolkit_qt/file_filter.h"

#include <QRegularExpression>

#include "toolkit_qt/qt_text.h"

namespace tamrikon {

QStringList nameFilters(const std::string& filter) {
  static const QRegularExpression ownPatterns(QStringLiteral("\\s*\\([^()]*\\*[^()]*\\)\\s*$"));
  const QStringList parts = toQt(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString description = parts[i];
    description.remove(ownPatterns);
    QStringList patterns;
    for (const QString& pattern : parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
      // Elsewhere a file needs no dot to be one of all.
      patterns.append(pattern.trimmed() == QLatin1String("*.*") ? QStringLiteral("*")
                                                                : pattern.trimmed());
    }
    filters.append(description + QLatin1String(" (") + patterns.join(QLatin1Char(' ')) +
                   QLatin1Char(')'));
  }
  return filters;
}

QString extensionOf(const QString& nameFilter) {
  static const QRegularExpression onePattern(QStringLiteral("\\(\\*\\.([^*?\\[\\] ().]+)\\)$"));
  return onePattern.match(nameFilter).captured(1);
}

}  // namespace tamrikon
