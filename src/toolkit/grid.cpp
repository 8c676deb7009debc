#include "toolkit/grid.h"

#include <algorithm>
#include <utility>

#include "toolkit/text_controls.h"

namespace tamrikon {

void Grid::clear() {
  rows_.clear();
  row_ = -1;
  column_ = 0;
  closeBox();
  changed();
}

void Grid::addRow(std::vector<std::string> cells) {
  cells.resize(headers_.size());
  rows_.push_back(std::move(cells));
  if (row_ < 0) row_ = 0;
  changed();
}

void Grid::removeRow(int row) {
  rows_.erase(rows_.begin() + row);
  row_ = std::min(row, rowCount() - 1);
  changed();
}

void Grid::setCell(int row, int column, const std::string& text) {
  std::string& cell = rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  if (cell == text) return;
  cell = text;
  if (peer() != nullptr) peer()->itemChanged(row);
}

void Grid::setCurrent(int row, int column) {
  if (row == row_ && column == column_) return;
  if (row_ >= 0) call(onLeaveCell);
  // The handler may have taken rows away.
  row_ = std::min(row, rowCount() - 1);
  column_ = column;
  changed();
}

void Grid::openBox(TextBox& box, int lines) {
  box_ = &box;
  boxLines_ = lines;
  box.setVisible(true);
  changed();
  box.setFocus();
  box.selectAll();
}

void Grid::closeBox() {
  if (box_ == nullptr) return;
  box_->setVisible(false);
  box_ = nullptr;
  changed();
}

void Grid::userClicked(int row, int column) {
  setCurrent(row, column);
  call(onClick);
}

void Grid::userMoved(int row, int column) {
  setCurrent(row, column);
}

}  // namespace tamrikon
