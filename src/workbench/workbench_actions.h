// The commands of the workbench, in its menus and on its toolbar.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>

namespace tamrikon {

/// Belong to the window, which says what they do.
struct WorkbenchActions {
  /// Makes them and puts them into the window.
  explicit WorkbenchActions(QMainWindow& window);

  QAction* open;
  QAction* save;
  QAction* saveAll;
  QAction* closeProject;
  QAction* exit;

  QAction* undo;
  QAction* redo;
  QAction* cut;
  QAction* copy;
  QAction* paste;
  QAction* selectAll;
  QAction* indent;
  QAction* outdent;
  QAction* find;
  QAction* findNext;
  QAction* findPrevious;
  QAction* replace;
  QAction* findInProject;
  QAction* goToLine;

  QAction* code;
  QAction* procedures;
  QAction* explorer;
  QAction* messages;
  QAction* zoomIn;
  QAction* zoomOut;
  QAction* zoomReset;

  QAction* addInManager;

  QAction* closeWindow;
  QAction* closeAllWindows;
  QAction* nextWindow;
  QAction* previousWindow;

  QAction* contents;
  QAction* about;

  QMenu* recent;
  QMenu* addIns;
  QMenu* windows;     // the list of windows goes to its end
  QMenu* codeWindow;  // pops up over code
  QToolBar* standard;

  /// Those that need a code window.
  QList<QAction*> ofCode() const;
};

}  // namespace tamrikon
