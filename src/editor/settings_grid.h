// The grid with the settings of the selected parameter, its in-place boxes and its buttons.
#pragma once

#include <string>

#include "editor/comment_fields.h"
#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/grid.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class SettingsGrid {
  Dialog& dialog_;  // before the controls, which are listed there

 public:
  /// Both must outlive the grid.
  SettingsGrid(Dialog& dialog, CommentFields& fields);
  Layout layout();

  /// Empties and disables everything; what an open box holds is dropped.
  void reset();

  /// Shows the settings of a parameter. All is disabled if three others have settings already.
  void showParameterSettings(const std::string& name);

  /// Puts what an open box holds into its cell and the cells into the fields.
  void commit();

  /// Whether a box is open.
  bool isEditing() const { return SetGrid.openedBox() != nullptr; }

  Label SettingsLabel{dialog_, "SettingsLabel", "Settings"};
  Grid SetGrid{dialog_, "SetGrid", {"Constant Name", "Value", "Description"}};
  TextBox Text1{dialog_, "Text1"};  // over the first two columns
  TextBox Text2{dialog_, "Text2"};  // over the description, which may have several lines
  CommandButton AddSetBtn{dialog_, "AddSetBtn", "Add"};
  CommandButton RemoveSetBtn{dialog_, "RemoveSetBtn", "Remove"};

 private:
  void enable(bool enabled);
  void openBox();
  void cancelBox();
  void moveRow(int step);
  void pressKeyInBox(KeyEvent& event);
  void clearCell(KeyEvent& event);
  void addRow();
  void removeRow();
  void store();

  CommentFields& fields_;
  std::string name_;  // of the parameter that is shown
  bool isCancelling_ = false;
};

}  // namespace tamrikon
