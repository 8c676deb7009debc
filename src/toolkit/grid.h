// A table of texts whose cells are edited in text boxes that are laid over them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/control.h"

namespace tamrikon {

class TextBox;

/// Rows and columns count from 0; the headers are no row. Without rows there is no current cell.
/// The arrow keys, Home and End move the current cell; Enter, F2 and a typed character act as a
/// click on it.
class Grid final : public Control {
 public:
  Grid(Dialog& dialog, std::string name, std::vector<std::string> headers)
      : Control(dialog, std::move(name)), headers_(std::move(headers)) {}

  const std::vector<std::string>& headers() const { return headers_; }
  int columnCount() const { return static_cast<int>(headers_.size()); }
  int rowCount() const { return static_cast<int>(rows_.size()); }

  void clear();

  /// Missing cells are empty. The first row that is added makes its first cell the current one.
  void addRow(std::vector<std::string> cells);

  /// The row that takes its place becomes the current one, or the last one.
  void removeRow(int row);

  const std::string& cell(int row, int column) const {
    return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  }
  void setCell(int row, int column, const std::string& text);

  /// -1 without rows.
  int currentRow() const { return row_; }
  int currentColumn() const { return column_; }

  /// Leaves the old cell, with onLeaveCell, and makes another one the current one.
  void setCurrent(int row, int column);

  /// Lays `box`, one of the dialog's in-place boxes, over the current cell, `lines` high, gives it
  /// the focus and selects its text. It stays there until closeBox().
  void openBox(TextBox& box, int lines = 1);
  void closeBox();

  /// Null while no box is open.
  TextBox* openedBox() const { return box_; }
  int boxLines() const { return boxLines_; }

  /// The current cell has been clicked.
  std::function<void()> onClick;

  /// The current cell, as it still is, is about to be left.
  std::function<void()> onLeaveCell;

  // For renderers.
  void userClicked(int row, int column);
  void userMoved(int row, int column);

 private:
  std::vector<std::string> headers_;
  std::vector<std::vector<std::string>> rows_;
  int row_ = -1;
  int column_ = 0;
  TextBox* box_ = nullptr;
  int boxLines_ = 1;
};

}  // namespace tamrikon
