#include "workbench/code_window.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QTextBlock>
#include <QVBoxLayout>
#include <optional>

#include "host/host_component.h"
#include "host/host_project.h"
#include "source/edit_group.h"
#include "toolkit_qt/qt_text.h"
#include "workbench/text_search.h"

namespace tamrikon {

CodeWindow::CodeWindow(HostModule& module, QWidget* parent)
    : QWidget(parent), module_(module), editor_(new CodeEditor(this)) {
  setObjectName("codeWindow");
  editor_->setAccessibleName(title());
  binding_ = new EditorBinding(*editor_, module_);
  binding_->setParent(this);
  procedures_ = new ProcedureBox(*editor_, module_, this);
  auto* objects = new QComboBox(this);
  objects->setObjectName("objectBox");
  objects->setAccessibleName("Object");
  objects->setToolTip("Object");
  objects->addItem("(General)");

  auto* boxes = new QHBoxLayout;
  boxes->setContentsMargins(4, 4, 4, 4);
  boxes->setSpacing(4);
  boxes->addWidget(objects, 1);
  boxes->addWidget(procedures_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(boxes);
  layout->addWidget(editor_, 1);
  setFocusProxy(editor_);

  connect(binding_, &EditorBinding::edited, procedures_, &ProcedureBox::followEdit);
  connect(binding_, &EditorBinding::edited, this, &CodeWindow::stateChanged);
  connect(binding_, &EditorBinding::savedStateFlipped, this, &CodeWindow::stateChanged);
}

void CodeWindow::retire() {
  delete procedures_;
  delete binding_;
  deleteLater();
}

QString CodeWindow::title() const {
  return toQt(module_.component().project().Name() + " - " + module_.Name() + " (Code)");
}

int CodeWindow::replaceAll(const TextSearch& search, const QString& replacement) {
  std::optional<EditGroup> oneStep(module_);
  int count = 0;
  for (QTextBlock block = editor_->document()->begin(); block.isValid(); block = block.next()) {
    const QString line = block.text();
    QString replaced;
    qsizetype from = 0;
    for (qsizetype at = search.findIn(line); at >= 0; at = search.findIn(line, from)) {
      replaced += QStringView(line).sliced(from, at - from);
      replaced += replacement;
      from = at + search.text.size();
      ++count;
    }
    if (from == 0) continue;
    replaced += QStringView(line).sliced(from);
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(replaced);
  }
  oneStep.reset();
  emit stateChanged();  // now it can be undone
  return count;
}

void CodeWindow::focusProcedureBox() {
  procedures_->setFocus(Qt::ShortcutFocusReason);
  procedures_->showPopup();
}

}  // namespace tamrikon
