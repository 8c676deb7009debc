// The tabs of the comment editor that hold nothing but texts: "Basic", "Misc", "User-defined
// fields" and "Source code view".
#pragma once

#include <array>

#include "editor/comment_fields.h"
#include "editor/field_boxes.h"
#include "settings/project_settings.h"
#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class BasicPage {
  Dialog& dialog_;  // before the controls, which are listed there

 public:
  BasicPage(Dialog& dialog, CommentFields& fields, FieldBoxes& boxes);
  Layout layout();

  Label DescriptionLabel{dialog_, "DescriptionLabel", "Description"};
  TextBox DescriptionText{dialog_, "DescriptionText"};
  Label RemarksLabel{dialog_, "RemarksLabel", "Remarks"};
  TextBox RemarksText{dialog_, "RemarksText"};
};

class AuthorPage {
  Dialog& dialog_;

 public:
  AuthorPage(Dialog& dialog, CommentFields& fields, FieldBoxes& boxes);
  Layout layout();
  void show();

  Label AuthorLabel{dialog_, "AuthorLabel", "Author"};
  TextBox AuthorText{dialog_, "AuthorText"};
  Label VersionLabel{dialog_, "VersionLabel", "Version"};
  TextBox VersionText{dialog_, "VersionText"};
  Label RevisionLabel{dialog_, "RevisionLabel", "Revision"};
  TextBox RevisionText{dialog_, "RevisionText"};
  CheckBox IncludeSourceCode{dialog_, "IncludeSourceCode", "Include source code"};

 private:
  CommentFields& fields_;
};

struct UserField {
  /// `number` is 1 to 5.
  UserField(Dialog& dialog, int number);

  Label label;   // User1Label to User5Label
  TextBox text;  // User1Text to User5Text
};

class UserPage {
 public:
  UserPage(Dialog& dialog, CommentFields& fields, FieldBoxes& boxes);
  Layout layout();

  /// Names the fields as the settings do.
  void show(const ProjectSettings& settings);

  std::array<UserField, ProjectSettings::kUserTags> users;
};

class SourcePage {
  Dialog& dialog_;

 public:
  explicit SourcePage(Dialog& dialog);
  Layout layout();

  TextBox SourceView{dialog_, "SourceView"};
  CommandButton Command1{dialog_, "Command1", "Options"};
};

}  // namespace tamrikon
