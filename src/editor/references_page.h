// The tab "References": links to other members, files and the member that shares the comment.
#pragma once

#include <string>

#include "compiler/session.h"
#include "editor/comment_fields.h"
#include "editor/edited_comment.h"
#include "editor/field_boxes.h"
#include "editor/link_list.h"
#include "toolkit/containers.h"
#include "toolkit/dialog.h"

namespace tamrikon {

class ReferencesPage {
  Dialog& dialog_;  // before the controls, which are listed there

 public:
  /// All of them must outlive the page.
  ReferencesPage(Dialog& dialog, CommentFields& fields, FieldBoxes& boxes, Session& session);
  Layout layout();

  // Set before anything is clicked.
  VBE* VBInstance = nullptr;
  const EditedComment* edited = nullptr;

  void show();

  /// Shows the selected links, as a click on them would.
  void fillBoxes();

  Frame SeeAlsoFrame{dialog_, "SeeAlsoFrame", "See Also"};
  LinkList seeAlso;
  CommandButton findInterestBtn{dialog_, "findInterestBtn", "Find interesting references",
                                "Autmatically add used, implemented and other objects"};
  Frame ExamplesFrame{dialog_, "ExamplesFrame", "Examples"};
  LinkList examples;
  CommandButton Command2{dialog_, "Command2", "Edit"};
  CommandButton Command3{dialog_, "Command3", "Create"};
  Frame SameFrame{dialog_, "SameFrame", "Same documentation as"};
  TextBox SameText{dialog_, "SameText"};
  CommandButton SelectSameBtn{dialog_, "SelectSameBtn", "..."};

 private:
  void selectSeeAlso();
  void findInterest();
  void selectExample();
  void createExample();
  void selectSame();

  CommentFields& fields_;
  Session& session_;
};

}  // namespace tamrikon
