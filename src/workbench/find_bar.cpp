#include "workbench/find_bar.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QToolButton>

namespace tamrikon {
namespace {

QLineEdit* makeEdit(QWidget* parent, const char* name, const char* purpose) {
  auto* edit = new QLineEdit(parent);
  edit->setObjectName(name);
  edit->setAccessibleName(purpose);
  edit->setPlaceholderText(purpose);
  edit->setClearButtonEnabled(true);
  return edit;
}

}  // namespace

FindBar::FindBar(QWidget* parent)
    : QWidget(parent),
      findText_(makeEdit(this, "findText", "Find")),
      replaceText_(makeEdit(this, "replaceText", "Replace with")),
      matchCase_(new QCheckBox("Match &case", this)),
      wholeWord_(new QCheckBox("Wh&ole word", this)),
      status_(new QLabel(this)),
      replaceRow_(new QWidget(this)) {
  setObjectName("findBar");
  setAccessibleName("Find and replace");
  matchCase_->setObjectName("matchCase");
  wholeWord_->setObjectName("wholeWord");
  status_->setObjectName("findStatus");
  status_->setTextFormat(Qt::PlainText);

  const auto button = [this](const char* name, const QString& text, const QString& toolTip,
                             auto action) {
    auto* made = new QPushButton(text, this);
    made->setObjectName(name);
    made->setToolTip(toolTip);
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this, action);
    needText_ += made;
    return made;
  };
  auto* previous = button("findPrevious", "&Previous", "Shift+F3", &FindBar::findPrevious);
  auto* next = button("findNext", "&Next", "F3", &FindBar::findNext);
  auto* all = button("findInProject", "Find in Pro&ject", "In all modules of the active project",
                     [this] { emit projectSearchWanted(search()); });
  auto* replace =
      button("replaceOne", "&Replace", "Replace this one and go on", [this] { replaceOne(); });
  auto* replaceAll = button("replaceAll", "Replace A&ll", "Replace all in this module",
                            [this] { this->replaceAll(); });
  auto* close = new QToolButton(this);
  close->setObjectName("closeFindBar");
  close->setAccessibleName("Close");
  close->setToolTip("Close (Esc)");
  close->setAutoRaise(true);
  close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  connect(close, &QToolButton::clicked, this, &FindBar::closeBar);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(6, 4, 6, 4);
  grid->setVerticalSpacing(4);
  grid->addWidget(findText_, 0, 0);
  auto* findButtons = new QHBoxLayout;
  for (QWidget* widget : QList<QWidget*>{previous, next, all}) findButtons->addWidget(widget);
  findButtons->addSpacing(6);
  for (QWidget* widget : QList<QWidget*>{matchCase_, wholeWord_}) findButtons->addWidget(widget);
  findButtons->addSpacing(6);
  findButtons->addWidget(status_, 1);
  findButtons->addWidget(close);
  grid->addLayout(findButtons, 0, 1);
  grid->addWidget(replaceText_, 1, 0);
  auto* replaceButtons = new QHBoxLayout(replaceRow_);
  replaceButtons->setContentsMargins(0, 0, 0, 0);
  replaceButtons->addWidget(replace);
  replaceButtons->addWidget(replaceAll);
  replaceButtons->addStretch(1);
  grid->addWidget(replaceRow_, 1, 1);
  grid->setColumnStretch(0, 2);
  grid->setColumnStretch(1, 3);

  const QList<QWidget*> order{findText_,  replaceText_, previous, next,       all,
                              matchCase_, wholeWord_,   replace,  replaceAll, close};
  for (int i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);

  connect(findText_, &QLineEdit::textEdited, this, &FindBar::findWhileTyping);
  connect(findText_, &QLineEdit::textChanged, this, &FindBar::showState);
  for (QCheckBox* box : {matchCase_, wholeWord_}) {
    connect(box, &QCheckBox::toggled, this, &FindBar::findWhileTyping);
  }
  findText_->installEventFilter(this);
  replaceText_->installEventFilter(this);
  hide();
  showState();
}

TextSearch FindBar::search() const {
  return {findText_->text(), matchCase_->isChecked(), wholeWord_->isChecked()};
}

void FindBar::setWindow(CodeWindow* window) {
  window_ = window;
  showStatus({});
  showState();
}

void FindBar::showState() {
  for (QWidget* widget : needText_) {
    const bool isOfProject = widget->objectName() == "findInProject";
    widget->setEnabled(!findText_->text().isEmpty() && (window_ != nullptr || isOfProject));
  }
}

void FindBar::takeSelection() {
  if (window_ == nullptr) return;
  const QString selected = window_->editor().textCursor().selectedText();
  if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) {
    findText_->setText(selected);
  }
}

void FindBar::openFor(bool replacing) {
  takeSelection();
  replaceText_->setVisible(replacing);
  replaceRow_->setVisible(replacing);
  show();
  showStatus({});
  findText_->setFocus(Qt::ShortcutFocusReason);
  findText_->selectAll();
}

void FindBar::closeBar() {
  hide();
  if (window_ != nullptr) window_->editor().setFocus();
}

void FindBar::findNext() {
  if (window_ == nullptr) return;
  if (findText_->text().isEmpty()) takeSelection();
  find(Direction::forward, window_->editor().textCursor().selectionEnd());
}

void FindBar::findPrevious() {
  if (window_ == nullptr) return;
  if (findText_->text().isEmpty()) takeSelection();
  find(Direction::backward, window_->editor().textCursor().selectionStart());
}

void FindBar::findWhileTyping() {
  if (window_ == nullptr) return;
  if (findText_->text().isEmpty()) return showStatus({});
  find(Direction::forward, window_->editor().textCursor().selectionStart());
}

void FindBar::find(Direction direction, int from) {
  const TextSearch search = this->search();
  if (search.text.isEmpty()) return;
  CodeEditor& editor = window_->editor();
  const QTextDocument& document = *editor.document();
  const bool forward = direction == Direction::forward;
  QTextBlock block = document.findBlock(from);
  qsizetype edge = from - block.position();
  bool isRound = false;
  // The block it starts in is the last one too: its other part comes at the end.
  for (int left = document.blockCount() + 1; left > 0; --left) {
    const QString text = block.text();
    const qsizetype at = forward ? search.findIn(text, edge)
                                 : search.findLastIn(text, edge < 0 ? text.size() : edge);
    if (at >= 0) {
      QTextCursor cursor = editor.textCursor();
      cursor.setPosition(block.position() + static_cast<int>(at));
      cursor.setPosition(cursor.position() + static_cast<int>(search.text.size()),
                         QTextCursor::KeepAnchor);
      editor.setTextCursor(cursor);
      const QString edgeName = forward ? "Went on from the top" : "Went on from the end";
      return showStatus(isRound ? edgeName : QString());
    }
    block = forward ? block.next() : block.previous();
    edge = forward ? 0 : -1;
    if (!block.isValid()) {
      block = forward ? document.begin() : document.lastBlock();
      isRound = true;
    }
  }
  showStatus("Not found", true);
}

void FindBar::replaceOne() {
  if (window_ == nullptr) return;
  CodeEditor& editor = window_->editor();
  const QTextCursor cursor = editor.textCursor();
  const QTextBlock block = editor.document()->findBlock(cursor.selectionStart());
  const TextSearch search = this->search();
  const int start = cursor.selectionStart() - block.position();
  const bool isOnMatch = cursor.selectionEnd() - cursor.selectionStart() == search.text.size() &&
                         search.findIn(block.text(), start) == start;
  if (isOnMatch) editor.insertSource(replaceText_->text());
  findNext();
}

void FindBar::replaceAll() {
  if (window_ == nullptr) return;
  const int count = window_->replaceAll(search(), replaceText_->text());
  showStatus(count == 0 ? "Not found" : QString("%1 replaced").arg(count), count == 0);
}

void FindBar::showStatus(const QString& text, bool isFailure) {
  status_->setText(text);
  QPalette palette = this->palette();
  if (isFailure) palette.setColor(QPalette::WindowText, codeColours(palette).string);
  status_->setPalette(palette);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
      if (watched == replaceText_) {
        replaceOne();
      } else if ((key->modifiers() & Qt::ShiftModifier) != 0) {
        findPrevious();
      } else {
        findNext();
      }
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return closeBar();
  QWidget::keyPressEvent(event);
}

}  // namespace tamrikon
