#include "workbench/line_number_area.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTextBlock>
#include <algorithm>

#include "workbench/code_editor.h"

namespace tamrikon {
namespace {

constexpr int kLeastDigits = 3;  // so that the margin of a short module doesn't jump

}  // namespace

LineNumberArea::LineNumberArea(CodeEditor& editor) : QWidget(&editor), editor_(editor) {
  setObjectName("lineNumbers");
}

int LineNumberArea::neededWidth() const {
  int digits = 1;
  for (int count = editor_.blockCount(); count >= 10; count /= 10) ++digits;
  const int character = editor_.fontMetrics().horizontalAdvance('9');
  return character * std::max(digits, kLeastDigits) + 2 * character;
}

void LineNumberArea::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const CodeColours& colours = editor_.colours();
  painter.fillRect(event->rect(), colours.margin);
  painter.setFont(editor_.font());
  const int character = editor_.fontMetrics().horizontalAdvance('9');
  const int current = editor_.textCursor().blockNumber();
  QTextBlock block = editor_.firstVisibleBlock();
  QRectF rect = editor_.blockBoundingGeometry(block).translated(editor_.contentOffset());
  for (; block.isValid() && rect.top() <= event->rect().bottom(); block = block.next()) {
    rect.setHeight(editor_.blockBoundingRect(block).height());
    const bool isCurrent = block.blockNumber() == current;
    painter.setPen(isCurrent ? editor_.palette().color(QPalette::Text) : colours.lineNumber);
    painter.drawText(QRectF(0, rect.top(), width() - character, rect.height()),
                     Qt::AlignRight | Qt::AlignVCenter, QString::number(block.blockNumber() + 1));
    rect.translate(0, rect.height());
  }
}

void LineNumberArea::mousePressEvent(QMouseEvent* event) {
  QTextCursor cursor = editor_.cursorForPosition({0, event->position().toPoint().y()});
  cursor.movePosition(QTextCursor::StartOfBlock);
  cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
  if (cursor.atEnd()) cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  editor_.setTextCursor(cursor);
  editor_.setFocus();
}

void LineNumberArea::wheelEvent(QWheelEvent* event) {
  editor_.wheelEvent(event);
}

}  // namespace tamrikon
