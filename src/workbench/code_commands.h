// What the commands do that concern code and its windows: editing, finding, zooming.
#pragma once

#include <QObject>
#include <QSettings>

#include "workbench/code_tabs.h"
#include "workbench/find_bar.h"
#include "workbench/prompts.h"
#include "workbench/workbench_actions.h"

namespace tamrikon {

class CodeCommands final : public QObject {
  Q_OBJECT
 public:
  /// All must outlive this object. The zoom is kept in the settings.
  CodeCommands(const WorkbenchActions& actions, CodeTabs& tabs, FindBar& findBar, Prompts& prompts,
               QSettings& settings);

 signals:
  /// The caret of the window in front has moved, or another window is in front.
  void caretMoved();

 private:
  void connectEditing();
  void connectFinding();
  void connectWindows();
  void connectWindow(CodeWindow& window);

  /// Calls a slot without arguments of what has the focus, or else of the code in front.
  void callOnFocused(const char* slot);
  void showState();
  void listWindows();
  void zoom(int steps);
  void applyZoom();

  const WorkbenchActions& actions_;
  CodeTabs& tabs_;
  FindBar& findBar_;
  Prompts& prompts_;
  QSettings& settings_;
  QList<QAction*> windowList_;
};

}  // namespace tamrikon
