// Tamrikon's own entries in the workbench: its options in the Add-Ins menu, the comment editor in
// the pop-up menu of the code.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "compiler/session.h"
#include "ide/connect.h"
#include "ide/events.h"
#include "workbench/renderer/qt_toolkit.h"

namespace tamrikon {

class WorkbenchWindow;

class TamrikonAddIn {
 public:
  /// `window` must outlive the add-in. `dataFolder` is the folder of the program's data.
  TamrikonAddIn(WorkbenchWindow& window, std::string dataFolder);
  ~TamrikonAddIn();
  TamrikonAddIn(const TamrikonAddIn&) = delete;
  TamrikonAddIn& operator=(const TamrikonAddIn&) = delete;

  Session& session() { return session_; }

  /// What the two entries do.
  void showOptions() { connect_.Show(); }
  void editComment();

 private:
  void addItem(const char* bar, const char* caption, std::function<void()> click);

  WorkbenchWindow& window_;
  QtToolkit toolkit_;
  Session session_;
  connect connect_;
  std::vector<std::unique_ptr<CommandBarEvents>> handlers_;
};

}  // namespace tamrikon
