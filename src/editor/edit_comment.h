// The comment editor: a dialog that shows the comment of a member or module as fields, and writes
// it back without the user having to know a tag.
#pragma once

#include <memory>
#include <vector>

#include "compiler/session.h"
#include "editor/comment_fields.h"
#include "editor/edited_comment.h"
#include "editor/field_boxes.h"
#include "editor/field_origins.h"
#include "editor/parameters_page.h"
#include "editor/references_page.h"
#include "editor/text_pages.h"
#include "toolkit/buttons.h"
#include "toolkit/containers.h"
#include "toolkit/dialog.h"

namespace tamrikon {

/// Closes by itself where there is nothing to edit.
class EditComment final : public Dialog {
  CommentFields fields_;  // before the pages, which are views of it
  FieldBoxes boxes_;

 public:
  /// `session` must outlive the dialog.
  explicit EditComment(Toolkit& toolkit, Session& session);

  // Both are set before the dialog is shown.
  VBE* VBInstance = nullptr;
  EditGrouping group;  // around each change of the source; may be empty

  TabStrip tbsOptions{
      *this,
      "tbsOptions",
      {{"Group1", "Basic", "Edit basic fields"},
       {"Group2", "Parameters", "Edit parameters"},
       {"Group3", "References", "Edit references to other members or files"},
       {"Group6", "Misc", "Author, revision, version"},
       {"Group5", "User-defined fields", "Edit user-defined fields"},
       {"Group4", "Source code view", "View how the source code comment will look like"}}};
  BasicPage basicPage{*this, fields_, boxes_};
  ParametersPage parametersPage;
  ReferencesPage referencesPage;
  AuthorPage miscPage{*this, fields_, boxes_};
  UserPage userPage{*this, fields_, boxes_};
  SourcePage sourcePage{*this};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
  CommandButton cmdApply{*this, "cmdApply", "Apply"};

 private:
  Layout layout() override;
  void onLoad() override;

  void onKeyDown(KeyEvent& event) override;
  bool onQueryClose() override;

  void load();
  void fillControls();
  void takeBoxes();
  CommentLines composeComment();

  /// False if the user doesn't want what it would do.
  bool apply();

  /// Shows the lines that would be lost, if there are any; whether the user agrees.
  bool mayLose();

  /// Whether the user has changed a field since the comment was read or written.
  bool isChanged();

  /// Asks what to do with changes; whether the dialog may close.
  bool letGo();
  void showOptions();

  Session& session_;
  std::unique_ptr<EditedComment> edited_;
  FieldOrigins origins_;
  std::vector<FieldItem> unchanged_;
  bool laysOutAll_ = false;  // the user has chosen another layout
};

}  // namespace tamrikon
