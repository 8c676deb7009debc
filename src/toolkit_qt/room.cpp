#include "toolkit_qt/room.h"

#include <QFontMetrics>
#include <QStyle>

namespace tamrikon {

int widthOf(const QWidget& widget, int characters) {
  widget.ensurePolished();
  return widget.fontMetrics().averageCharWidth() * characters;
}

int heightOf(const QWidget& widget, int lines) {
  widget.ensurePolished();
  return widget.fontMetrics().lineSpacing() * lines;
}

int itemHeight(const QWidget& widget) {
  const int margin = widget.style()->pixelMetric(QStyle::PM_FocusFrameVMargin, nullptr, &widget);
  return heightOf(widget, 1) + 2 * margin;
}

QSize roomInside(const QAbstractScrollArea& area, int characters, int lines, int lineHeight) {
  const QStyle& style = *area.style();
  const int margins =
      2 * (area.frameWidth() + style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &area) + 1);
  const int scrollBar = style.pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &area);
  return {widthOf(area, characters) + margins + scrollBar, lines * lineHeight + margins};
}

QSize leastRoom(const QAbstractScrollArea& area, const QSize& room) {
  constexpr int kCharacters = 16;
  constexpr int kLines = 3;
  return room.boundedTo(roomInside(area, kCharacters, kLines, heightOf(area, 1)));
}

}  // namespace tamrikon
