#include "workbench/code_commands.h"

#include <QActionGroup>
#include <QApplication>
#include <QFontDatabase>
#include <algorithm>

namespace tamrikon {
namespace {

constexpr auto kZoomKey = "Code/Zoom";  // points above the font's own size
constexpr int kSmallest = 5;
constexpr int kLargest = 48;

bool hasSlot(const QObject* object, const char* slot) {
  const QByteArray signature = QByteArray(slot) + "()";
  return object != nullptr && object->metaObject()->indexOfSlot(signature) >= 0;
}

}  // namespace

CodeCommands::CodeCommands(const WorkbenchActions& actions, CodeTabs& tabs, FindBar& findBar,
                           Prompts& prompts, QSettings& settings)
    : actions_(actions), tabs_(tabs), findBar_(findBar), prompts_(prompts), settings_(settings) {
  connectEditing();
  connectFinding();
  connectWindows();
  applyZoom();
  showState();
}

void CodeCommands::connectEditing() {
  const auto onCode = [this](QAction* action, auto call) {
    connect(action, &QAction::triggered, this, [this, call] {
      if (tabs_.current() != nullptr) call(*tabs_.current());
    });
  };
  onCode(actions_.undo, [](CodeWindow& window) { window.undo(); });
  onCode(actions_.redo, [](CodeWindow& window) { window.redo(); });
  onCode(actions_.indent, [](CodeWindow& window) { window.editor().indentSelection(); });
  onCode(actions_.outdent, [](CodeWindow& window) { window.editor().outdentSelection(); });
  onCode(actions_.procedures, [](CodeWindow& window) { window.focusProcedureBox(); });
  onCode(actions_.goToLine, [this](CodeWindow& window) {
    CodeEditor& editor = window.editor();
    const int line = prompts_.chooseLine(editor.caretLine(), editor.blockCount());
    if (line > 0) editor.goToLine(line);
    editor.setFocus();
  });
  const auto onFocused = [this](QAction* action, const char* slot) {
    connect(action, &QAction::triggered, this, [this, slot] { callOnFocused(slot); });
  };
  onFocused(actions_.cut, "cut");
  onFocused(actions_.copy, "copy");
  onFocused(actions_.paste, "paste");
  onFocused(actions_.selectAll, "selectAll");
}

void CodeCommands::callOnFocused(const char* slot) {
  QWidget* focused = QApplication::focusWidget();
  if (hasSlot(focused, slot)) {
    QMetaObject::invokeMethod(focused, slot);
  } else if (tabs_.current() != nullptr) {
    QMetaObject::invokeMethod(&tabs_.current()->editor(), slot);
  }
}

void CodeCommands::connectFinding() {
  connect(actions_.find, &QAction::triggered, this, [this] { findBar_.openFor(false); });
  connect(actions_.replace, &QAction::triggered, this, [this] { findBar_.openFor(true); });
  connect(actions_.findNext, &QAction::triggered, &findBar_, &FindBar::findNext);
  connect(actions_.findPrevious, &QAction::triggered, &findBar_, &FindBar::findPrevious);
  connect(actions_.findInProject, &QAction::triggered, this, [this] {
    findBar_.openFor(false);
    if (!findBar_.search().text.isEmpty()) emit findBar_.projectSearchWanted(findBar_.search());
  });
}

void CodeCommands::connectWindows() {
  connect(actions_.nextWindow, &QAction::triggered, this, [this] { tabs_.step(1); });
  connect(actions_.previousWindow, &QAction::triggered, this, [this] { tabs_.step(-1); });
  connect(actions_.closeWindow, &QAction::triggered, this, [this] {
    if (tabs_.current() != nullptr) emit tabs_.closeWanted(*tabs_.current());
  });
  connect(actions_.closeAllWindows, &QAction::triggered, this, [this] {
    for (CodeWindow* window : tabs_.windows()) {
      emit tabs_.closeWanted(*window);
      if (tabs_.indexOf(window) >= 0) break;  // the user has cancelled
    }
  });
  connect(actions_.windows, &QMenu::aboutToShow, this, &CodeCommands::listWindows);
  connect(actions_.zoomIn, &QAction::triggered, this, [this] { zoom(1); });
  connect(actions_.zoomOut, &QAction::triggered, this, [this] { zoom(-1); });
  connect(actions_.zoomReset, &QAction::triggered, this, [this] {
    settings_.remove(kZoomKey);
    applyZoom();
  });
  connect(&tabs_, &CodeTabs::added, this, &CodeCommands::connectWindow);
  connect(&tabs_, &CodeTabs::windowChanged, this, [this] {
    showState();
    // Once more, as nothing can be undone before a group of edits has come to its end.
    QMetaObject::invokeMethod(this, &CodeCommands::showState, Qt::QueuedConnection);
  });
  connect(&tabs_, &CodeTabs::frontChanged, this, [this] {
    findBar_.setWindow(tabs_.current());
    showState();
    emit caretMoved();
  });
}

void CodeCommands::connectWindow(CodeWindow& window) {
  CodeEditor* editor = &window.editor();
  connect(editor, &CodeEditor::menuWanted, this,
          [this](const QPoint& place) { actions_.codeWindow->popup(place); });
  connect(editor, &CodeEditor::zoomWanted, this, &CodeCommands::zoom);
  connect(editor, &QPlainTextEdit::copyAvailable, this, &CodeCommands::showState);
  connect(editor, &QPlainTextEdit::cursorPositionChanged, this, &CodeCommands::caretMoved);
}

void CodeCommands::showState() {
  const CodeWindow* window = tabs_.current();
  const bool hasWindow = window != nullptr;
  for (QAction* action : actions_.ofCode()) action->setEnabled(hasWindow);
  if (!hasWindow) return;
  const bool hasSelection = window->editor().textCursor().hasSelection();
  actions_.cut->setEnabled(hasSelection);
  actions_.copy->setEnabled(hasSelection);
  actions_.undo->setEnabled(window->module().canUndo());
  actions_.redo->setEnabled(window->module().canRedo());
}

void CodeCommands::listWindows() {
  qDeleteAll(windowList_);
  windowList_.clear();
  if (tabs_.count() == 0) return;
  windowList_ += actions_.windows->addSeparator();
  auto* group = new QActionGroup(windowList_.front());
  int number = 0;
  for (CodeWindow* window : tabs_.windows()) {
    QString title = window->title().replace('&', "&&");
    if (++number < 10) title.prepend(QString("&%1 ").arg(number));
    QAction* action = actions_.windows->addAction(title);
    action->setCheckable(true);
    action->setChecked(window == tabs_.current());
    connect(action, &QAction::triggered, window, [this, window] {
      tabs_.bringToFront(*window);
      window->editor().setFocus();
    });
    group->addAction(action);
    windowList_ += action;
  }
}

void CodeCommands::zoom(int steps) {
  const int own = QFontInfo(QFontDatabase::systemFont(QFontDatabase::FixedFont)).pointSize();
  const int points =
      std::clamp(own + settings_.value(kZoomKey).toInt() + steps, kSmallest, kLargest);
  settings_.setValue(kZoomKey, points - own);
  applyZoom();
}

void CodeCommands::applyZoom() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  const int points = QFontInfo(font).pointSize() + settings_.value(kZoomKey).toInt();
  font.setPointSize(std::clamp(points, kSmallest, kLargest));
  tabs_.setCodeFont(font);
}

}  // namespace tamrikon
