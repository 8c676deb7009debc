#include "toolkit_qt/title_room.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QScreen>
#include <QSpacerItem>
#include <algorithm>

namespace tamrikon {
namespace {

constexpr int kWidestBox = 900;  // a message that is wider is hard to read

const QScreen& screenOf(const QWidget* owner) {
  return owner != nullptr ? *owner->screen() : *QGuiApplication::primaryScreen();
}

/// The text with places in its long words where a line may end. Qt breaks a path at its separators
/// alone.
QString breakable(const QString& text) {
  constexpr int kLongest = 40;
  constexpr QChar kZeroWidthSpace(0x200B);
  QString broken;
  int inWord = 0;
  for (const QChar c : text) {
    inWord = c.isLetterOrNumber() ? inWord + 1 : 0;
    if (inWord > kLongest && !c.isLowSurrogate()) {
      broken += kZeroWidthSpace;
      inWord = 1;
    }
    broken += c;
  }
  return broken;
}

}  // namespace

int widthForTitle(const QString& title) {
  QFont font = QApplication::font("QMdiSubWindowTitleBar");
  font.setBold(true);  // as many desktops have it
  const QFontMetrics metrics(font);
  constexpr int kIconAndButtons = 6;  // each about as wide as a line is high
  return metrics.horizontalAdvance(title) + kIconAndButtons * metrics.lineSpacing();
}

QSize roomOnScreen(const QWidget* owner) {
  constexpr int kFrame = 16;
  constexpr int kTitleBar = 40;
  return screenOf(owner).availableSize() - QSize(kFrame, kTitleBar);
}

void makeRoomForTitle(QMessageBox& box) {
  const int width = widthForTitle(box.windowTitle());
  // Qt doesn't make a box wider than this.
  const int room = std::min(roomOnScreen(&box).width(), kWidestBox);
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (width > room || grid == nullptr) {
    box.setText(breakable(box.windowTitle()) + "\n\n" + box.text());
  } else {
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
  }
}

}  // namespace tamrikon
