// Keeps an editor and the module that it shows the same: what the user edits goes to the module,
// which is the truth, and what changes in the module from elsewhere comes to the editor.
#pragma once

#include <QObject>

#include "host/host_module.h"
#include "workbench/code_editor.h"

namespace tamrikon {

class EditorBinding final : public QObject, private SourceObserver {
  Q_OBJECT
 public:
  /// Shows the module's lines in the editor. Both must outlive the binding.
  EditorBinding(CodeEditor& editor, HostModule& module);
  ~EditorBinding() override;

  /// The caret goes where something has changed.
  void undo();
  void redo();

 signals:
  /// Lines of the module have changed, by the user or from elsewhere. The editor follows then.
  void edited();

  /// Whether the module is changed has become true or false.
  void savedStateFlipped();

 private:
  // SourceObserver
  void linesChanged(int first, int removed, int inserted) override;
  void savedStateChanged() override;

  void takeUserEdit(int position, int charsAdded);
  void showIndents();
  void replaceBlocks(int first, int count, const QStringList& lines);
  void change(int start, int end, QString text);
  void moveCaretToChange();

  CodeEditor& editor_;
  HostModule& module_;
  int moduleLines_ = 0;   // 0 for a module without lines, which a document can't be
  int changeStart_ = -1;  // positions in the document of what changed last from elsewhere
  int changeEnd_ = -1;
  int indentedFirst_ = 0;  // lines that the module has taken otherwise than the document has them
  int indentedCount_ = 0;
  bool isUserEdit_ = false;  // the module is being told of one
  bool isUpdate_ = false;    // the document is being told of one
};

}  // namespace tamrikon
