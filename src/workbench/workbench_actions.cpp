#include "workbench/workbench_actions.h"

#include <QMenuBar>

#include "workbench/workbench_icons.h"

namespace tamrikon {
namespace {

QAction* make(QMainWindow& window, const char* name, const QString& text,
              const QList<QKeySequence>& keys = {}) {
  auto* action = new QAction(text, &window);
  action->setObjectName(name);
  action->setShortcuts(keys);
  return action;
}

QAction* make(QMainWindow& window, const char* name, const QString& text,
              const QList<QKeySequence>& keys, WorkbenchIcon icon) {
  QAction* action = make(window, name, text, keys);
  action->setIcon(workbenchIcon(icon));
  QString toolTip = text;
  toolTip.remove('&').remove(QString::fromUtf8("…"));
  if (!keys.isEmpty()) toolTip += " (" + keys.front().toString(QKeySequence::NativeText) + ')';
  action->setToolTip(toolTip);
  return action;
}

QMenu* addMenu(QMainWindow& window, const char* name, const QString& title) {
  QMenu* menu = window.menuBar()->addMenu(title);
  menu->setObjectName(name);
  return menu;
}

}  // namespace

WorkbenchActions::WorkbenchActions(QMainWindow& window) {
  const QString dots = QString::fromUtf8("…");
  const auto key = [](const char* keys) { return QList{QKeySequence(keys)}; };

  open = make(window, "open", "&Open Project" + dots, key("Ctrl+O"), WorkbenchIcon::open);
  save = make(window, "save", "&Save", key("Ctrl+S"), WorkbenchIcon::save);
  saveAll = make(window, "saveAll", "Save A&ll", key("Ctrl+Shift+S"), WorkbenchIcon::saveAll);
  closeProject = make(window, "closeProject", "&Close Project", key("Ctrl+Shift+W"));
  exit = make(window, "exit", "E&xit", key("Ctrl+Q"));

  undo = make(window, "undo", "&Undo", key("Ctrl+Z"), WorkbenchIcon::undo);
  redo = make(window, "redo", "&Redo", {QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")},
              WorkbenchIcon::redo);
  cut = make(window, "cut", "Cu&t", key("Ctrl+X"), WorkbenchIcon::cut);
  copy = make(window, "copy", "&Copy", key("Ctrl+C"), WorkbenchIcon::copy);
  paste = make(window, "paste", "&Paste", key("Ctrl+V"), WorkbenchIcon::paste);
  selectAll = make(window, "selectAll", "Select &All", key("Ctrl+A"));
  indent = make(window, "indent", "&Indent", key("Ctrl+]"));
  outdent = make(window, "outdent", "&Outdent", key("Ctrl+["));
  find = make(window, "find", "&Find" + dots, key("Ctrl+F"), WorkbenchIcon::find);
  findNext = make(window, "findNext", "Find &Next", key("F3"));
  findPrevious = make(window, "findPrevious", "Find Pre&vious", key("Shift+F3"));
  replace = make(window, "replace", "R&eplace" + dots, key("Ctrl+H"));
  findInProject = make(window, "findInProject", "Find in Pro&ject", key("Ctrl+Shift+F"));
  goToLine = make(window, "goToLine", "&Go to Line" + dots, key("Ctrl+G"));

  code = make(window, "code", "&Code", key("F7"));
  procedures = make(window, "procedures", "P&rocedures", key("Ctrl+F2"));
  explorer = make(window, "explorer", "&Project Explorer", key("Ctrl+R"), WorkbenchIcon::explorer);
  messages = make(window, "messages", "&Messages", key("Ctrl+M"));
  zoomIn = make(window, "zoomIn", "Zoom &In", {QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});
  zoomOut = make(window, "zoomOut", "Zoom &Out", key("Ctrl+-"));
  zoomReset = make(window, "zoomReset", "Reset &Zoom", key("Ctrl+0"));

  addInManager = make(window, "addInManager", "&Add-In Manager" + dots);

  closeWindow =
      make(window, "closeWindow", "&Close", {QKeySequence("Ctrl+F4"), QKeySequence("Ctrl+W")});
  closeAllWindows = make(window, "closeAllWindows", "Close &All");
  nextWindow =
      make(window, "nextWindow", "&Next", {QKeySequence("Ctrl+Tab"), QKeySequence("Ctrl+F6")});
  previousWindow = make(window, "previousWindow", "&Previous",
                        {QKeySequence("Ctrl+Shift+Tab"), QKeySequence("Ctrl+Shift+F6")});
  contents = make(window, "contents", "&Contents", key("F1"));
  about = make(window, "about", "&About Tamrikon Workbench");

  window.menuBar()->setObjectName("menuBar");
  QMenu* file = addMenu(window, "fileMenu", "&File");
  file->addAction(open);
  recent = file->addMenu("&Recent Projects");
  recent->setObjectName("recentMenu");
  file->addActions({save, saveAll, closeProject});
  file->insertSeparator(save);
  file->insertSeparator(closeProject);
  file->addSeparator();
  file->addAction(exit);

  QMenu* edit = addMenu(window, "editMenu", "&Edit");
  edit->addActions({undo, redo});
  edit->addSeparator();
  edit->addActions({cut, copy, paste, selectAll});
  edit->addSeparator();
  edit->addActions({indent, outdent});
  edit->addSeparator();
  edit->addActions({find, findNext, findPrevious, replace, findInProject});
  edit->addSeparator();
  edit->addAction(goToLine);

  QMenu* view = addMenu(window, "viewMenu", "&View");
  view->addActions({code, procedures});
  view->addSeparator();
  view->addActions({explorer, messages});
  view->addSeparator();
  view->addActions({zoomIn, zoomOut, zoomReset});

  addIns = addMenu(window, "addInsMenu", "&Add-Ins");
  addIns->setToolTipsVisible(true);
  addIns->addAction(addInManager);
  addIns->addSeparator();

  windows = addMenu(window, "windowMenu", "&Window");
  windows->addActions({closeWindow, closeAllWindows});
  windows->addSeparator();
  windows->addActions({nextWindow, previousWindow});

  QMenu* help = addMenu(window, "helpMenu", "&Help");
  help->addAction(contents);
  help->addSeparator();
  help->addAction(about);

  codeWindow = new QMenu("Code Window", &window);
  codeWindow->setObjectName("codeWindowMenu");
  codeWindow->setToolTipsVisible(true);
  codeWindow->addActions({cut, copy, paste});
  codeWindow->addSeparator();
  codeWindow->addActions({find, goToLine});
  codeWindow->addSeparator();

  standard = window.addToolBar("Standard");
  standard->setObjectName("standardToolBar");
  standard->setIconSize({20, 20});
  standard->addActions({open, save, saveAll});
  standard->addSeparator();
  standard->addActions({cut, copy, paste});
  standard->addSeparator();
  standard->addActions({undo, redo});
  standard->addSeparator();
  standard->addActions({find, explorer});

  view->addSeparator();
  QAction* toolBar = standard->toggleViewAction();
  toolBar->setText("&Standard Toolbar");
  view->addAction(toolBar);
}

QList<QAction*> WorkbenchActions::ofCode() const {
  return {save,
          undo,
          redo,
          cut,
          copy,
          paste,
          selectAll,
          indent,
          outdent,
          find,
          findNext,
          findPrevious,
          replace,
          goToLine,
          procedures,
          closeWindow,
          closeAllWindows,
          nextWindow,
          previousWindow};
}

}  // namespace tamrikon
