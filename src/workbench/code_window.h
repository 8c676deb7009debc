// A page with the code of one module: its editor, and above it the boxes of objects and procedures.
#pragma once

#include <QWidget>

#include "host/host_module.h"
#include "workbench/code_editor.h"
#include "workbench/editor_binding.h"
#include "workbench/procedure_box.h"

namespace tamrikon {

struct TextSearch;

class CodeWindow final : public QWidget {
  Q_OBJECT
 public:
  /// The module must outlive the window.
  explicit CodeWindow(HostModule& module, QWidget* parent = nullptr);

  HostModule& module() const { return module_; }
  CodeEditor& editor() const { return *editor_; }

  /// Lets go of the module. The window, which may be in the middle of an event, goes later.
  void retire();

  /// Undo and redo are those of the module.
  void undo() { binding_->undo(); }
  void redo() { binding_->redo(); }

  /// Such as "Stock - Warehouse (Code)".
  QString title() const;

  /// Replaces all matches, in one undo step. How many there were.
  int replaceAll(const TextSearch& search, const QString& replacement);

  void focusProcedureBox();

 signals:
  /// What can be undone, or whether the module is changed, may be another.
  void stateChanged();

 private:
  HostModule& module_;
  CodeEditor* editor_;
  ProcedureBox* procedures_;
  EditorBinding* binding_;
};

}  // namespace tamrikon
