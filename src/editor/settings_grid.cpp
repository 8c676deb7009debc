#include "editor/settings_grid.h"

#include <algorithm>
#include <vector>

#include "editor/setting_tables.h"

namespace tamrikon {
namespace {

constexpr int kDescription = 2;       // the column
constexpr int kDescriptionLines = 4;  // the height of its box

}  // namespace

SettingsGrid::SettingsGrid(Dialog& dialog, CommentFields& fields)
    : dialog_(dialog), fields_(fields) {
  Text2.setMultiLine(true);
  for (TextBox* box : {&Text1, &Text2}) {
    box->setVisible(false);
    box->onLostFocus = [this] { commit(); };
  }
  Text1.onKeyDown = [this](KeyEvent& event) { pressKeyInBox(event); };
  Text2.onKeyDown = [this](KeyEvent& event) {
    if (event.key == Key::escape) pressKeyInBox(event);
  };
  SetGrid.onClick = [this] { openBox(); };
  SetGrid.onGotFocus = [this] { commit(); };
  SetGrid.onLeaveCell = [this] { commit(); };
  SetGrid.onKeyDown = [this](KeyEvent& event) { clearCell(event); };
  AddSetBtn.onClick = [this] { addRow(); };
  RemoveSetBtn.onClick = [this] { removeRow(); };
}

void SettingsGrid::enable(bool enabled) {
  SettingsLabel.setEnabled(enabled);
  SetGrid.setEnabled(enabled);
  AddSetBtn.setEnabled(enabled);
  RemoveSetBtn.setEnabled(enabled);
}

void SettingsGrid::reset() {
  SetGrid.clear();
  enable(false);
}

void SettingsGrid::showParameterSettings(const std::string& name) {
  name_ = name;
  SetGrid.clear();
  enable(true);
  if (const FieldList* table = findSettings(fields_.settingsLists, name)) {
    for (const std::string& item : *table) {
      const SettingRow row = settingRow(item);
      SetGrid.addRow({row.begin() + 1, row.end()});
    }
  } else if (hasFreeTable(fields_.settingsLists)) {
    RemoveSetBtn.setEnabled(false);
  } else {
    enable(false);
  }
}

void SettingsGrid::openBox() {
  if (SetGrid.currentRow() < 0) return;
  const bool isDescription = SetGrid.currentColumn() == kDescription;
  TextBox& box = isDescription ? Text2 : Text1;
  box.setText(SetGrid.cell(SetGrid.currentRow(), SetGrid.currentColumn()));
  SetGrid.openBox(box, isDescription ? kDescriptionLines : 1);
}

void SettingsGrid::commit() {
  const TextBox* box = SetGrid.openedBox();
  if (box == nullptr || isCancelling_) return;
  SetGrid.setCell(SetGrid.currentRow(), SetGrid.currentColumn(), box->text());
  SetGrid.closeBox();
  store();
}

void SettingsGrid::cancelBox() {
  // The focus goes first: a box that is hidden while it has the focus hands it on to anything.
  isCancelling_ = true;
  SetGrid.setFocus();
  SetGrid.closeBox();
  isCancelling_ = false;
}

void SettingsGrid::moveRow(int step) {
  const int row = std::clamp(SetGrid.currentRow() + step, 0, SetGrid.rowCount() - 1);
  SetGrid.setCurrent(row, SetGrid.currentColumn());
}

void SettingsGrid::pressKeyInBox(KeyEvent& event) {
  if (SetGrid.openedBox() == nullptr) return;
  switch (event.key) {
    case Key::escape: cancelBox(); break;
    case Key::enter:
    case Key::down:
    case Key::up:
      SetGrid.setFocus();
      commit();
      if (event.key != Key::enter) moveRow(event.key == Key::down ? 1 : -1);
      break;
    default: return;
  }
  event.handled = true;
}

void SettingsGrid::clearCell(KeyEvent& event) {
  if (event.key != Key::del || SetGrid.currentRow() < 0) return;
  SetGrid.setCell(SetGrid.currentRow(), SetGrid.currentColumn(), "");
  store();
  event.handled = true;
}

void SettingsGrid::addRow() {
  SetGrid.addRow({});
  SetGrid.setCurrent(SetGrid.rowCount() - 1, 0);
  RemoveSetBtn.setEnabled(true);
  store();
}

void SettingsGrid::removeRow() {
  if (SetGrid.rowCount() <= 1) {
    SetGrid.clear();
  } else {
    SetGrid.removeRow(SetGrid.currentRow());
  }
  RemoveSetBtn.setEnabled(SetGrid.rowCount() > 0);
  store();
}

void SettingsGrid::store() {
  std::vector<SettingCells> rows;
  for (int row = 0; row < SetGrid.rowCount(); ++row) {
    rows.push_back({SetGrid.cell(row, 0), SetGrid.cell(row, 1), SetGrid.cell(row, kDescription)});
  }
  storeParameterSettings(fields_.settingsLists, name_, rows);
}

Layout SettingsGrid::layout() {
  return row({labelled(SettingsLabel, gridItem(SetGrid, {&Text1, &Text2}).sized(50, 5).growing())
                  .growing(),
              column({item(AddSetBtn), item(RemoveSetBtn), space()})});
}

}  // namespace tamrikon
