#include "workbench/editor_binding.h"

#include <QScopedValueRollback>
#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "workbench/block_text.h"

namespace tamrikon {
namespace {

QStringList blocksOf(const HostModule& module, int first, int count) {
  if (count == 0) return {};
  return toBlocks(module.Lines(first, count));
}

bool beginsWithTab(const QString& line) {
  const auto end = std::find_if_not(line.begin(), line.end(), [](QChar c) { return c == ' '; });
  return end != line.end() && *end == '\t';
}

/// Takes away what is the same at both ends, but for one line: Qt may tell of a line more than the
/// one that is being typed. How many lines it took from the start.
int cutSame(QStringList& old, QStringList& now) {
  const auto hasMore = [&] { return old.size() > 1 && now.size() > 1; };
  while (hasMore() && old.back() == now.back()) {
    old.removeLast();
    now.removeLast();
  }
  int cut = 0;
  for (; hasMore() && old.front() == now.front(); ++cut) {
    old.removeFirst();
    now.removeFirst();
  }
  return cut;
}

}  // namespace

EditorBinding::EditorBinding(CodeEditor& editor, HostModule& module)
    : editor_(editor), module_(module), moduleLines_(module.CountOfLines()) {
  editor_.setPlainText(blocksOf(module_, 1, moduleLines_).join('\n'));
  connect(editor_.document(), &QTextDocument::contentsChange, this,
          [this](int position, int, int added) { takeUserEdit(position, added); });
  connect(editor_.document(), &QTextDocument::contentsChanged, this, &EditorBinding::showIndents);
  connect(&editor_, &CodeEditor::undoWanted, this, &EditorBinding::undo);
  connect(&editor_, &CodeEditor::redoWanted, this, &EditorBinding::redo);
  connect(&editor_, &QPlainTextEdit::cursorPositionChanged, this, [this] {
    if (!editor_.isTyping() && !isUpdate_) module_.endTyping();
  });
  module_.observe(*this);
}

EditorBinding::~EditorBinding() {
  module_.stopObserving(*this);
}

void EditorBinding::takeUserEdit(int position, int charsAdded) {
  if (isUpdate_) return;
  const QTextDocument& document = *editor_.document();
  const QTextBlock first = document.findBlock(position);
  QTextBlock last = document.findBlock(position + charsAdded);
  if (!last.isValid()) last = document.lastBlock();
  QStringList lines;
  for (QTextBlock block = first; block.isValid(); block = block.next()) {
    lines += block.text();
    if (block == last) break;
  }
  const int blocksBefore = std::max(moduleLines_, 1);
  const int grown = document.blockCount() - blocksBefore;
  const int count = std::min(static_cast<int>(lines.size()) - grown, moduleLines_);
  moduleLines_ = document.blockCount();
  QStringList old = blocksOf(module_, first.blockNumber() + 1, count);
  const int line = first.blockNumber() + 1 + cutSame(old, lines);
  if (lines == old) return;
  const EditKind kind = editor_.isTyping() ? EditKind::typing : EditKind::step;
  {
    const QScopedValueRollback mark(isUserEdit_, true);
    const int removed = static_cast<int>(old.size());
    module_.replaceLines(line, removed, fromBlock(lines.join('\n')), kind);
  }
  if (std::any_of(lines.begin(), lines.end(), beginsWithTab)) {
    indentedFirst_ = line;
    indentedCount_ = static_cast<int>(lines.size());
  }
  emit edited();
}

/// In the module, tabs in front of a line have become blanks.
void EditorBinding::showIndents() {
  const int count = std::exchange(indentedCount_, 0);
  if (count == 0) return;
  const QScopedValueRollback mark(isUpdate_, true);
  replaceBlocks(indentedFirst_, count, blocksOf(module_, indentedFirst_, count));
}

void EditorBinding::linesChanged(int first, int removed, int inserted) {
  if (isUserEdit_) return;
  emit edited();
  const int top = editor_.topLine();
  {
    const QScopedValueRollback mark(isUpdate_, true);
    QStringList lines = blocksOf(module_, first, inserted);
    const int before = moduleLines_;
    moduleLines_ += inserted - removed;
    // The empty line of an empty document stands for no line at all.
    if (before == 0) removed = 1;
    if (moduleLines_ == 0) lines = QStringList{QString()};
    replaceBlocks(first, removed, lines);
  }
  // What stands in sight stays where it is.
  if (first + removed <= top) editor_.setTopLine(top + inserted - removed);
}

void EditorBinding::replaceBlocks(int first, int count, const QStringList& lines) {
  const QTextDocument& document = *editor_.document();
  const QTextBlock block = document.findBlockByNumber(first - 1);
  const QTextBlock last = document.findBlockByNumber(first + count - 2);
  const int documentEnd = document.characterCount() - 1;
  const QString text = lines.join('\n');
  if (count == 0 && lines.isEmpty()) return;
  if (count == 0) {
    if (block.isValid()) return change(block.position(), block.position(), text + '\n');
    return change(documentEnd, documentEnd, '\n' + text);
  }
  const int start = block.position();
  const int end = last.position() + last.length() - 1;
  if (!lines.isEmpty()) return change(start, end, text);
  if (last.next().isValid()) return change(start, end + 1, {});
  change(start - 1, end, {});
}

/// Leaves what is the same at both ends alone, and with it the carets there.
void EditorBinding::change(int start, int end, QString text) {
  QTextCursor cursor(editor_.document());
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  const QString old = cursor.selectedText().replace(QChar::ParagraphSeparator, '\n');
  const qsizetype most = std::min(old.size(), text.size());
  qsizetype same = 0;
  while (same < most && old[same] == text[same]) ++same;
  qsizetype sameEnd = 0;
  while (sameEnd < most - same &&
         old[old.size() - 1 - sameEnd] == text[text.size() - 1 - sameEnd]) {
    ++sameEnd;
  }
  text = text.sliced(same, text.size() - same - sameEnd);
  cursor.setPosition(start + static_cast<int>(same));
  cursor.setPosition(end - static_cast<int>(sameEnd), QTextCursor::KeepAnchor);
  changeStart_ = cursor.selectionStart();
  cursor.insertText(text);
  changeEnd_ = cursor.position();
}

void EditorBinding::savedStateChanged() {
  emit savedStateFlipped();
}

void EditorBinding::undo() {
  changeEnd_ = -1;
  module_.undo();
  moveCaretToChange();
}

void EditorBinding::redo() {
  changeEnd_ = -1;
  module_.redo();
  moveCaretToChange();
}

void EditorBinding::moveCaretToChange() {
  if (changeEnd_ < 0) return;
  QTextCursor cursor = editor_.textCursor();
  cursor.setPosition(changeEnd_);
  editor_.setTextCursor(cursor);
  const QTextDocument& document = *editor_.document();
  editor_.showLines(document.findBlock(changeStart_).blockNumber() + 1, cursor.blockNumber() + 1);
}

}  // namespace tamrikon
