// The tab "Comment": what a generated comment gets.
#pragma once

#include <array>

#include "compiler/session.h"
#include "settings/project_settings.h"
#include "toolkit/buttons.h"
#include "toolkit/containers.h"
#include "toolkit/dialog.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

/// The controls of one user tag.
struct UserTagControls {
  /// `number` is 1 to 5.
  UserTagControls(Dialog& dialog, int number);

  const int number;
  CheckBox add;               // Check20 to Check24
  TextBox name;               // Text2 to Text6
  CommandButton defaultText;  // Command5 to Command9
};

class CommentPage {
  Dialog& dialog_;  // before the controls, which are listed there

 public:
  /// The default texts of the user tags live in `copy`. All must outlive the page.
  CommentPage(Dialog& dialog, Session& session, ProjectSettings& copy);

  Layout layout();

  void showUserTags(const ProjectSettings& settings);

  /// What the controls hold, and the default texts.
  void takeUserTags(ProjectSettings& settings) const;

  Label Label4{dialog_, "Label4",
               "Select the fields or tags that will be automatically added to comment when using "
               "\"Add Tamrikon comment\" command from pop-up menu. These options are only used "
               "with methods/functions, properties and events."};

  Frame Frame3{dialog_, "Frame3", "Tags/Fields"};
  CheckBox Check12{dialog_, "Check12", "Description, if any",
                   "Add description extracted from description inserted in Tools->Procedure "
                   "Attributes... menu"};
  CheckBox Check11{dialog_, "Check11", "@param Tag", "Add parameters description"};
  CheckBox Check13{dialog_, "Check13", "@return Tag", "Add description of return value"};
  CheckBox Check14{dialog_, "Check14", "@rem Tag", "Add remarks"};
  CheckBox Check15{dialog_, "Check15", "@see Tag", "Add \"See Also\" list"};
  CheckBox Check16{dialog_, "Check16", "@same Tag",
                   "The comment is the same as of another specified object"};
  CheckBox Check25{dialog_, "Check25", "@author Tag", "Add author name"};
  CheckBox Check26{dialog_, "Check26", "@revision Tag", "Last revision"};
  CheckBox Check27{dialog_, "Check27", "@version Tag", "Version number"};
  CheckBox Check28{dialog_, "Check28", "@includesource Tag",
                   "Whether source code should be included"};

  Frame Frame4{dialog_, "Frame4", "User Tags"};
  std::array<UserTagControls, ProjectSettings::kUserTags> userTags{
      {{dialog_, 1}, {dialog_, 2}, {dialog_, 3}, {dialog_, 4}, {dialog_, 5}}};
  CommandButton Command10{dialog_, "Command10", "Import",
                          "Import tags from another Tamrikon project"};

 private:
  void editDefault(std::size_t tag);
  void import();

  Session& session_;
  ProjectSettings& copy_;
};

}  // namespace tamrikon
