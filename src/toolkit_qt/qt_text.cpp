#include "toolkit_qt/qt_text.h"

#include "toolkit/accelerators.h"

namespace tamrikon {

QString toQt(const std::string& text) {
  return QString::fromStdString(text);
}

std::string fromQt(const QString& text) {
  return text.toStdString();
}

QString linesToQt(const std::string& text) {
  QString lines = toQt(text);
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return lines;
}

std::string linesFromQt(const QString& text) {
  QString lines = text;
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
  return fromQt(lines);
}

QString literalCaption(const std::string& caption) {
  return linesToQt(markedCaption(caption));
}

QString toolTipToQt(const std::string& toolTip) {
  if (toolTip.empty()) return {};
  QString escaped = linesToQt(toolTip).toHtmlEscaped();
  escaped.replace(QLatin1Char('\n'), QLatin1String("<br>"));
  return QLatin1String("<qt>") + escaped + QLatin1String("</qt>");
}

}  // namespace tamrikon
