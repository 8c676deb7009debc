// The box above the code that shows in which procedure the caret stands, and leads to others.
#pragma once

#include <QComboBox>
#include <QTimer>
#include <vector>

#include "host/host_module.h"
#include "workbench/code_editor.h"

namespace tamrikon {

class ProcedureBox final : public QComboBox {
  Q_OBJECT
 public:
  /// Both must outlive the box. The editor shows the module.
  ProcedureBox(CodeEditor& editor, HostModule& module, QWidget* parent = nullptr);

  /// The module's lines have changed. The list follows when the user pauses.
  void followEdit();

 private:
  struct Procedure {
    QString label;
    std::size_t index;  // into the analysis
  };

  void refresh();
  void followCaret();
  void goTo(int item);

  CodeEditor& editor_;
  HostModule& module_;
  std::vector<int> items_;  // by procedure of the analysis: its place in the list
  QTimer pause_;
};

}  // namespace tamrikon
