#include "toolkit_qt/text_box_peers.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>
#include <utility>

#include "toolkit_qt/event_gate.h"
#include "toolkit_qt/qt_text.h"
#include "toolkit_qt/text_peers.h"

namespace tamrikon {
namespace {

constexpr int kCharacters = 24;  // of a box that asks for nothing
constexpr int kLines = 4;

class LinesEdit final : public Sized<QPlainTextEdit> {
 public:
  using Sized::Sized;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier) &&
        !isReadOnly()) {
      // Qt would make it a line separator, which is no line end.
      textCursor().insertBlock();
      ensureCursorVisible();
      return;
    }
    Sized::keyPressEvent(event);
  }
};

/// QPlainTextEdit's own operation makes blanks of no-break spaces.
QString textOf(const QPlainTextEdit& edit) {
  QString text = edit.document()->toRawText();
  text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
  return text;
}

}  // namespace

void TextBoxPeer::setInPlace(const Grid& grid, QWidget& table) {
  grid_ = &grid;
  table_ = &table;
  // The cells around it have the same background.
  if (auto* frame = qobject_cast<QFrame*>(&widget())) frame->setFrameStyle(QFrame::Box);
}

bool TextBoxPeer::isToBeSeen() const {
  return Peer::isToBeSeen() && (grid_ == nullptr || grid_->openedBox() == &box_);
}

void TextBoxPeer::update() {
  // Qt would give the focus to what happens to be next.
  if (grid_ != nullptr && !isToBeSeen() && widget().hasFocus()) table_->setFocus();
  showFont();
  showReadOnly(box_.isReadOnly());
  if (shown_ != box_.text()) {
    shown_ = box_.text();
    showText(shown_);
  }
  Peer::update();
}

void TextBoxPeer::type(QKeyEvent& event) {
  // Past the event filters, which have seen the key.
  static_cast<QObject&>(widget()).event(&event);
}

bool TextBoxPeer::isNextAdded(const std::string& text) {
  if (shown_.size() + text.size() != box_.text().size()) return false;
  shown_ += text;
  return true;
}

void TextBoxPeer::showFont() {
  if (hasFixedFont_ == box_.hasFixedFont()) return;
  hasFixedFont_ = box_.hasFixedFont();
  widget().setFont(hasFixedFont_ ? fixedFont() : QFont());
}

void TextBoxPeer::edited(const QString& text) {
  const std::string lines = linesFromQt(text);
  if (lines == shown_) return;
  shown_ = lines;
  tell([this, lines] { box_.userEdited(lines); });
}

LineBoxPeer::LineBoxPeer(PeerContext context, TextBox& box, QWidget* parent)
    : TextBoxPeer(context, box, *new QLineEdit(parent)),
      widget_(static_cast<QLineEdit*>(&widget())) {
  connect(widget_, &QLineEdit::textEdited, this, [this](const QString& text) {
    const bool hadLines = shown().find('\n') != std::string::npos;
    if (hadLines || !(text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\r')))) {
      return edited(text);
    }
    // Several lines were pasted: there is room for one.
    QString line = linesToQt(fromQt(text));
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    widget_->setText(line);
    edited(line);
  });
}

void LineBoxPeer::askForRoom(int characters, int) {
  showFont();
  const int margins = widget_->sizeHint().width() -
                      widget_->fontMetrics().horizontalAdvance(QString(17, QLatin1Char('x')));
  const int room = widthOf(*widget_, characters > 0 ? characters : kCharacters);
  widget_->setMinimumWidth(room + std::max(margins, 0));
}

void LineBoxPeer::showText(const std::string& text) {
  const int caret = widget_->hasFocus() ? widget_->cursorPosition() : 0;
  widget_->setText(linesToQt(text));
  widget_->setCursorPosition(std::min(caret, static_cast<int>(widget_->text().size())));
}

LinesBoxPeer::LinesBoxPeer(PeerContext context, TextBox& box, QWidget* parent)
    : TextBoxPeer(context, box, *new LinesEdit(parent)),
      widget_(static_cast<Sized<QPlainTextEdit>*>(&widget())) {
  widget_->setTabChangesFocus(true);
  if (box.hasFixedFont()) widget_->setLineWrapMode(QPlainTextEdit::NoWrap);
  showSoon_.setSingleShot(true);
  connect(&showSoon_, &QTimer::timeout, this, [this] { showAdded(); });
  connect(widget_, &QPlainTextEdit::textChanged, this, [this] {
    if (this->context().gate.isQuiet()) return;
    showAdded();
    edited(textOf(*widget_));
  });
}

void LinesBoxPeer::askForRoom(int characters, int lines) {
  showFont();
  const int border = qRound(2 * widget_->document()->documentMargin());
  widget_->setRoom(roomInside(*widget_, characters > 0 ? characters : kCharacters,
                              lines > 0 ? lines : kLines, heightOf(*widget_, 1)) +
                   QSize(border, border));
}

void LinesBoxPeer::showText(const std::string& text) {
  added_.clear();
  const int caret = widget_->hasFocus() ? widget_->textCursor().position() : 0;
  widget_->setPlainText(linesToQt(text));
  QTextCursor cursor = widget_->textCursor();
  cursor.setPosition(std::min(caret, widget_->document()->characterCount() - 1));
  widget_->setTextCursor(cursor);
}

void LinesBoxPeer::showReadOnly(bool readOnly) {
  if (widget_->isReadOnly() == readOnly) return;
  widget_->setReadOnly(readOnly);
  // Nobody can undo a log that grows, and it would be kept twice.
  widget_->setUndoRedoEnabled(!readOnly);
}

void LinesBoxPeer::selectAll() {
  showAdded();
  widget_->selectAll();
}

void LinesBoxPeer::textAppended(const std::string& text) {
  if (!isNextAdded(text)) return changed();
  // Many messages in one go cost a small part of what they do one by one.
  if (added_.isEmpty()) showSoon_.start();
  added_ += linesToQt(text);
}

void LinesBoxPeer::showAdded() {
  if (added_.isEmpty()) return;
  const EventGate::Quiet quiet(context().gate);
  // A cursor of its own leaves the user's selection as it is.
  QTextCursor end(widget_->document());
  end.movePosition(QTextCursor::End);
  end.insertText(std::exchange(added_, {}));
  QScrollBar& scrollBar = *widget_->verticalScrollBar();
  scrollBar.setValue(scrollBar.maximum());
}

std::unique_ptr<TextBoxPeer> makeTextBoxPeer(PeerContext context, TextBox& box, QWidget* parent) {
  if (box.isMultiLine()) return std::make_unique<LinesBoxPeer>(context, box, parent);
  return std::make_unique<LineBoxPeer>(context, box, parent);
}

}  // namespace tamrikon
