#include "workbench/procedure_box.h"

#include <QSignalBlocker>
#include <algorithm>
#include <chrono>

#include "toolkit_qt/qt_text.h"

namespace tamrikon {
namespace {

using namespace std::chrono_literals;
constexpr auto kPause = 250ms;

QString labelOf(const MemberRecord& member, ProcKind kind) {
  const QString name = toQt(member.writtenName);
  if (member.type != MemberType::property) return name;
  switch (kind) {
    case ProcKind::get: return name + " [Get]";
    case ProcKind::let: return name + " [Let]";
    case ProcKind::set: return name + " [Set]";
    default: return name;
  }
}

}  // namespace

ProcedureBox::ProcedureBox(CodeEditor& editor, HostModule& module, QWidget* parent)
    : QComboBox(parent), editor_(editor), module_(module) {
  setObjectName("procedureBox");
  setAccessibleName("Procedure");
  setToolTip("Procedure");
  setMaxVisibleItems(24);
  setMinimumContentsLength(12);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  connect(&pause_, &QTimer::timeout, this, &ProcedureBox::refresh);
  connect(&editor_, &QPlainTextEdit::cursorPositionChanged, this, &ProcedureBox::followCaret);
  connect(this, &QComboBox::activated, this, &ProcedureBox::goTo);
  refresh();
}

void ProcedureBox::followEdit() {
  pause_.start();
}

void ProcedureBox::refresh() {
  const ModuleAnalysis& analysis = module_.analysis();
  std::vector<Procedure> procedures;
  for (std::size_t i = 0; i < analysis.procedures().size(); ++i) {
    const ProcedureRecord& record = analysis.procedures()[i];
    procedures.push_back({labelOf(analysis.members()[record.member], record.kind), i});
  }
  std::stable_sort(procedures.begin(), procedures.end(), [](const auto& one, const auto& other) {
    return one.label.compare(other.label, Qt::CaseInsensitive) < 0;
  });
  items_.assign(procedures.size(), 0);
  QStringList labels{"(Declarations)"};
  for (const Procedure& procedure : procedures) {
    items_[procedure.index] = static_cast<int>(labels.size());
    labels += procedure.label;
  }
  const QSignalBlocker quiet(this);
  clear();
  addItems(labels);
  for (std::size_t i = 0; i < items_.size(); ++i) {
    setItemData(items_[i], static_cast<int>(i));
  }
  followCaret();
}

void ProcedureBox::followCaret() {
  if (pause_.isActive()) return;  // the list is of lines that are no more
  const ModuleAnalysis& analysis = module_.analysis();
  const int line = editor_.caretLine();
  const ProcedureRecord* procedure =
      line <= module_.CountOfLines() ? analysis.procedureAt(line) : nullptr;
  const std::ptrdiff_t index = procedure == nullptr ? -1 : procedure - analysis.procedures().data();
  setCurrentIndex(index < 0 ? 0 : items_[static_cast<std::size_t>(index)]);
}

void ProcedureBox::goTo(int item) {
  if (pause_.isActive()) {
    // Meanwhile the procedure may have moved: the list is made anew, and looked through by name.
    const QString label = itemText(item);
    pause_.stop();
    refresh();
    item = findText(label);
    if (item < 0) return;
  }
  const QVariant index = itemData(item);
  editor_.setFocus();
  if (!index.isValid()) return editor_.goToLine(1);
  const ProcedureRecord& procedure =
      module_.analysis().procedures()[static_cast<std::size_t>(index.toInt())];
  editor_.goToLine(procedure.bodyLine);
  editor_.setTopLine(procedure.startLine);
  editor_.ensureCursorVisible();
}

}  // namespace tamrikon
