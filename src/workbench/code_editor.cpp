#include "workbench/code_editor.h"

#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "toolkit_qt/qt_text.h"
#include "workbench/block_text.h"
#include "workbench/line_number_area.h"
#include "workbench/vb_highlighter.h"

namespace tamrikon {
namespace {

constexpr int kTabWidth = 4;

bool isBlank(QChar c) {
  return c == ' ' || c == '\t';
}

qsizetype indentOf(const QString& text) {
  const auto end = std::find_if_not(text.begin(), text.end(), isBlank);
  return end - text.begin();
}

/// The column, from 0, that `position` shows in, tabs being stops.
qsizetype visualColumn(const QString& text, qsizetype position) {
  qsizetype column = 0;
  for (qsizetype i = 0; i < position; ++i) {
    column += text[i] == '\t' ? kTabWidth - column % kTabWidth : 1;
  }
  return column;
}

/// The blocks that a selection touches; one at whose start it ends isn't.
std::pair<QTextBlock, QTextBlock> touchedBlocks(const QTextCursor& cursor) {
  const QTextDocument& document = *cursor.document();
  const QTextBlock first = document.findBlock(cursor.selectionStart());
  QTextBlock last = document.findBlock(cursor.selectionEnd());
  if (last != first && cursor.selectionEnd() == last.position()) last = last.previous();
  return {first, last};
}

}  // namespace

void CodeEditor::setUserTags(const QStringList& tags) {
  highlighter_->setUserTags(tags);
}

void CodeEditor::showLines(int first, int last) {
  const int top = topLine();
  const int room = std::max(viewport()->height() / std::max(fontMetrics().lineSpacing(), 1), 1);
  if (first >= top && last < top + room) return;
  setTopLine(std::max(first - std::max(room - (last - first + 1), 0) / 2, 1));
}

CodeEditor::CodeEditor(QWidget* parent)
    : QPlainTextEdit(parent), colours_(codeColours(palette())), margin_(new LineNumberArea(*this)) {
  setObjectName("codeEditor");
  setUndoRedoEnabled(false);
  setLineWrapMode(NoWrap);
  setFrameShape(NoFrame);
  highlighter_ = new VbHighlighter(document(), colours_);
  setCodeFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  connect(this, &QPlainTextEdit::blockCountChanged, this, &CodeEditor::placeMargin);
  connect(this, &QPlainTextEdit::updateRequest, this, &CodeEditor::scrollMargin);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeEditor::showCurrentLine);
  showCurrentLine();
}

Selection CodeEditor::selection() const {
  const QTextCursor cursor = textCursor();
  const QTextBlock first = document()->findBlock(cursor.selectionStart());
  const QTextBlock last = document()->findBlock(cursor.selectionEnd());
  Selection result;
  result.startLine = first.blockNumber() + 1;
  result.startColumn = columnAt(first.text(), cursor.selectionStart() - first.position());
  result.endLine = last.blockNumber() + 1;
  result.endColumn = columnAt(last.text(), cursor.selectionEnd() - last.position());
  return result;
}

void CodeEditor::setSelection(const Selection& selection) {
  const auto place = [&](int line, int column) {
    const int number = std::clamp(line, 1, blockCount());
    const QTextBlock block = document()->findBlockByNumber(number - 1);
    return block.position() + positionAt(block.text(), column);
  };
  QTextCursor cursor = textCursor();
  cursor.setPosition(place(selection.startLine, selection.startColumn));
  cursor.setPosition(place(selection.endLine, selection.endColumn), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

int CodeEditor::topLine() const {
  return firstVisibleBlock().blockNumber() + 1;
}

void CodeEditor::setTopLine(int line) {
  verticalScrollBar()->setValue(line - 1);
}

void CodeEditor::goToLine(int line) {
  setSelection({line, 1, line, 1});
  centerCursor();
}

void CodeEditor::insertSource(const QString& text) {
  QTextCursor cursor = textCursor();
  cursor.insertText(text);
  setTextCursor(cursor);
  ensureCursorVisible();
}

void CodeEditor::indentSelection() {
  QTextCursor cursor = textCursor();
  const auto [first, last] = touchedBlocks(cursor);
  cursor.beginEditBlock();
  for (QTextBlock block = first; block.isValid(); block = block.next()) {
    if (block.length() > 1) {
      QTextCursor(block).insertText(QString(kTabWidth, ' '));
    }
    if (block == last) break;
  }
  cursor.endEditBlock();
}

void CodeEditor::outdentSelection() {
  QTextCursor cursor = textCursor();
  const auto [first, last] = touchedBlocks(cursor);
  cursor.beginEditBlock();
  for (QTextBlock block = first; block.isValid(); block = block.next()) {
    const QString text = block.text();
    int count = 0;
    while (count < std::min<qsizetype>(kTabWidth, text.size()) && text[count] == ' ') ++count;
    QTextCursor blanks(block);
    blanks.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, count);
    blanks.removeSelectedText();
    if (block == last) break;
  }
  cursor.endEditBlock();
}

void CodeEditor::insertTab() {
  const QTextCursor cursor = textCursor();
  if (touchedBlocks(cursor).first != touchedBlocks(cursor).second) return indentSelection();
  const QTextBlock block = document()->findBlock(cursor.selectionStart());
  const auto column = visualColumn(block.text(), cursor.selectionStart() - block.position());
  insertSource(QString(kTabWidth - column % kTabWidth, ' '));
}

void CodeEditor::breakLine() {
  const QTextCursor cursor = textCursor();
  const QTextBlock block = document()->findBlock(cursor.selectionStart());
  const qsizetype before = cursor.selectionStart() - block.position();
  const qsizetype indent = std::min(indentOf(block.text()), before);
  insertSource('\n' + block.text().first(indent));
}

bool CodeEditor::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    // The text control would claim these keys, and do nothing with them.
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
      event->ignore();
      return false;
    }
  }
  return QPlainTextEdit::event(event);
}

void CodeEditor::keyPressEvent(QKeyEvent* event) {
  const bool isPlain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
  if (event->matches(QKeySequence::Undo)) return emit undoWanted();
  if (event->matches(QKeySequence::Redo)) return emit redoWanted();
  if (isPlain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
    return breakLine();
  }
  if (isPlain && event->key() == Qt::Key_Backtab) return outdentSelection();
  if (event->modifiers() == Qt::NoModifier && event->key() == Qt::Key_Tab) return insertTab();
  if (event->modifiers() == Qt::NoModifier && event->key() == Qt::Key_Insert) {
    setOverwriteMode(!overwriteMode());
    return emit cursorPositionChanged();  // the caret looks different
  }
  const bool isErasing = isPlain && !textCursor().hasSelection() &&
                         (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete);
  const bool isPrintable = !event->text().isEmpty() && event->text().front().isPrint();
  const QScopedValueRollback typing(isTyping_, isErasing || isPrintable);
  QPlainTextEdit::keyPressEvent(event);
}

void CodeEditor::inputMethodEvent(QInputMethodEvent* event) {
  const QScopedValueRollback typing(isTyping_, true);
  QPlainTextEdit::inputMethodEvent(event);
}

void CodeEditor::contextMenuEvent(QContextMenuEvent* event) {
  const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
  const QTextCursor clicked = cursorForPosition(event->pos());
  const QTextCursor cursor = textCursor();
  const bool isInSelection =
      clicked.position() >= cursor.selectionStart() && clicked.position() <= cursor.selectionEnd();
  if (!isByKey && !isInSelection) setTextCursor(clicked);
  emit menuWanted(isByKey ? viewport()->mapToGlobal(cursorRect().bottomLeft())
                          : event->globalPos());
}

void CodeEditor::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) != 0) {
    if (event->angleDelta().y() != 0) emit zoomWanted(event->angleDelta().y() > 0 ? 1 : -1);
    return event->accept();
  }
  QPlainTextEdit::wheelEvent(event);
}

void CodeEditor::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (highlighter_ == nullptr) return;
  if (event->type() == QEvent::PaletteChange) adoptPalette();
  if (event->type() == QEvent::FontChange) placeMargin();
}

void CodeEditor::adoptPalette() {
  colours_ = codeColours(palette());
  highlighter_->setColours(colours_);
  showCurrentLine();
  margin_->update();
}

void CodeEditor::setCodeFont(const QFont& font) {
  setFont(font);
  setTabStopDistance(kTabWidth * QFontMetricsF(font).horizontalAdvance(' '));
  placeMargin();
}

void CodeEditor::resizeEvent(QResizeEvent* event) {
  const bool wasInSight =
      event->oldSize().height() > cursorRect().bottom() && cursorRect().top() >= 0;
  QPlainTextEdit::resizeEvent(event);
  placeMargin();
  if (wasInSight) ensureCursorVisible();
}

void CodeEditor::placeMargin() {
  const int width = margin_->neededWidth();
  const QRect inside = contentsRect();
  setViewportMargins(width, 0, 0, 0);
  margin_->setGeometry(inside.left(), inside.top(), width, viewport()->height());
}

void CodeEditor::scrollMargin(const QRect& rect, int dy) {
  if (dy != 0) {
    margin_->scroll(0, dy);
  } else {
    margin_->update(0, rect.y(), margin_->width(), rect.height());
  }
}

void CodeEditor::showCurrentLine() {
  QTextEdit::ExtraSelection line;
  line.format.setBackground(colours_.currentLine);
  line.format.setProperty(QTextFormat::FullWidthSelection, true);
  line.cursor = textCursor();
  line.cursor.clearSelection();
  setExtraSelections({line});
  margin_->update();
}

bool CodeEditor::canInsertFromMimeData(const QMimeData* source) const {
  return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
}

QMimeData* CodeEditor::createMimeDataFromSelection() const {
  // Not the text that Qt would give, in which fixed spaces have become blanks.
  QString text = textCursor().selectedText();
  text.replace(QChar::ParagraphSeparator, '\n');
  auto* data = new QMimeData;
  QStringList lines = text.split('\n');
  for (QString& line : lines) line = toQt(fromBlock(line));
  data->setText(lines.join('\n'));
  return data;
}

void CodeEditor::insertFromMimeData(const QMimeData* source) {
  QString text = source->text();
  text.replace("\r\n", "\n").replace('\r', '\n');
  QStringList lines = text.split('\n');
  for (QString& line : lines) line = toBlock(fromQt(line));
  insertSource(lines.join('\n'));
}

}  // namespace tamrikon
