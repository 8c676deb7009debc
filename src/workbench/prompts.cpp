#include "workbench/prompts.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <vector>

#include "workbench/program_name.h"

namespace tamrikon {
namespace {

constexpr int kWidest = 560;

}  // namespace

int BoxPrompts::ask(const Question& question) {
  const bool isMessage = question.answers.size() == 1;
  QMessageBox box(&window_);
  box.setObjectName("question");
  box.setWindowTitle(kWorkbenchName);
  box.setIcon(isMessage ? QMessageBox::Warning : QMessageBox::Question);
  box.setTextFormat(Qt::PlainText);
  box.setText(question.text);
  box.setInformativeText(question.details);
  if (auto* details = box.findChild<QLabel*>("qt_msgbox_informativelabel")) {
    details->setTextFormat(Qt::PlainText);
    const QSize size = details->fontMetrics().size(0, question.details);
    details->setMinimumWidth(std::min(size.width(), kWidest));  // paths are broken badly
  }
  std::vector<QPushButton*> buttons;
  for (int i = 0; i < question.answers.size(); ++i) {
    // The desktop has its own order for these.
    const QMessageBox::ButtonRole role = i == question.refused ? QMessageBox::RejectRole
                                         : i == 0              ? QMessageBox::AcceptRole
                                                               : QMessageBox::DestructiveRole;
    buttons.push_back(box.addButton(question.answers[i], role));
  }
  box.setDefaultButton(buttons[static_cast<std::size_t>(question.proposed)]);
  box.setEscapeButton(buttons[static_cast<std::size_t>(question.refused)]);
  box.exec();
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    if (box.clickedButton() == buttons[i]) return static_cast<int>(i);
  }
  return question.refused;
}

int BoxPrompts::chooseLine(int current, int last) {
  bool isChosen = false;
  const int line = QInputDialog::getInt(
      &window_, "Go to Line", QString("Line (1 to %1):").arg(last), current, 1, last, 1, &isChosen);
  return isChosen ? line : 0;
}

QString BoxPrompts::chooseProject(const QString& folder) {
  return QFileDialog::getOpenFileName(
      &window_, "Open Project", folder,
      "Visual Basic projects (*.vbp *.vbg *.VBP *.VBG);;All files (*)");
}

}  // namespace tamrikon
