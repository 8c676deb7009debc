// The tab "Parameters": parameters with their texts and settings, and the return value.
#pragma once

#include "editor/comment_fields.h"
#include "editor/field_boxes.h"
#include "editor/settings_grid.h"
#include "settings/project_settings.h"
#include "toolkit/buttons.h"
#include "toolkit/containers.h"
#include "toolkit/dialog.h"
#include "toolkit/list_controls.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class ParametersPage {
  Dialog& dialog_;  // before the controls, which are listed there

 public:
  /// All of them must outlive the page.
  ParametersPage(Dialog& dialog, CommentFields& fields, FieldBoxes& boxes,
                 ProjectSettings& settings);
  Layout layout();

  /// What the button "Update" takes parameters and return value from.
  CommentLines generatedLines;

  /// Without arguments and a return value there is nothing to edit.
  void enable(bool enabled);

  /// Shows the fields, with the first parameter selected.
  void show();

  /// Takes over what stands in the boxes of the selected parameter.
  void take();

  /// Brings the fields up to date with the declaration. What gets lost is added to `lost`.
  void update();
  CommentLines lost;

  Frame ParametersFrame{dialog_, "ParametersFrame", "Parameters"};
  Label ParamLabel{dialog_, "ParamLabel", "Parameter name"};
  ListBox ParamList{dialog_, "ParamList"};
  Label ParamTextLabel{dialog_, "ParamTextLabel", "Description"};
  TextBox ParamText{dialog_, "ParamText"};
  SettingsGrid settingsGrid;
  Frame ReturnsFrame{dialog_, "ReturnsFrame", "Returns"};
  TextBox ReturnsText{dialog_, "ReturnsText"};
  CheckBox updateOnStartCheck{dialog_, "updateOnStartCheck", "Update on startup",
                              "Check whether to update every time the editor is started"};
  CommandButton ParamUpdateBtn{dialog_, "ParamUpdateBtn", "Update"};

 private:
  void selectParameter();

  CommentFields& fields_;
  ProjectSettings& settings_;
  int shown_ = -1;  // the parameter whose text and settings are shown
};

}  // namespace tamrikon
