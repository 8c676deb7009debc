// A text box for source, with line numbers, colours and indenting. It undoes nothing by itself:
// whoever binds it to a module does.
#pragma once

#include <QPlainTextEdit>

#include "ide/ide.h"
#include "workbench/code_colours.h"

namespace tamrikon {

class LineNumberArea;
class VbHighlighter;

class CodeEditor final : public QPlainTextEdit {
  Q_OBJECT
 public:
  explicit CodeEditor(QWidget* parent = nullptr);

  /// Lines count from 1 and columns count characters. Places outside the text are moved into it.
  Selection selection() const;
  void setSelection(const Selection& selection);

  int topLine() const;
  void setTopLine(int line);

  int caretLine() const { return textCursor().blockNumber() + 1; }

  /// Scrolls if some of these lines are out of sight, so that as many of them as there is room for
  /// stand in the middle.
  void showLines(int first, int last);

  /// Moves the caret to the start of a line that is then well in sight.
  void goToLine(int line);

  /// Replaces the selection, which stays selected, or inserts at the caret.
  void insertSource(const QString& text);

  void indentSelection();
  void outdentSelection();

  /// Whether what changes just now is being typed character by character.
  bool isTyping() const { return isTyping_; }

  const CodeColours& colours() const { return colours_; }

  void setCodeFont(const QFont& font);

  /// Tags beside Tamrikon's own, such as "@todo", which are coloured like those.
  void setUserTags(const QStringList& tags);

 signals:
  void undoWanted();
  void redoWanted();

  /// The pop-up menu is wanted, by mouse or key.
  void menuWanted(const QPoint& globalPosition);

  /// Larger by so many steps, or smaller.
  void zoomWanted(int steps);

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  friend class LineNumberArea;

  void adoptPalette();
  void placeMargin();
  void scrollMargin(const QRect& rect, int dy);
  void showCurrentLine();
  void insertTab();
  void breakLine();

  CodeColours colours_;
  VbHighlighter* highlighter_ = nullptr;
  LineNumberArea* margin_ = nullptr;
  bool isTyping_ = false;
};

}  // namespace tamrikon
