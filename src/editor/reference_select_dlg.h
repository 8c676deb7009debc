// The dialog "Select reference", which picks the target of a link.
#pragma once

#include <string>

#include "compiler/session.h"
#include "model/wrapper.h"
#include "toolkit/buttons.h"
#include "toolkit/containers.h"
#include "toolkit/dialog.h"
#include "toolkit/list_controls.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

/// One of the init operations says what may be picked, before the dialog is shown.
class ReferenceSelectDlg final : public Dialog {
 public:
  /// Links count from `member`. Both must outlive the dialog.
  ReferenceSelectDlg(Toolkit& toolkit, Session& session, const Wrapper& member,
                     std::string presentLink);

  void initBoth();    // beginning with members
  void initFile();    // files alone
  void initMember();  // members alone

  /// The link that is shown at first, and the one that was picked; empty if that was cancelled.
  std::string link;

  Frame Frame1{*this, "Frame1"};
  OptionGroup options;
  OptionButton Option1{*this, options, "Option1", "Project member"};
  OptionButton Option2{*this, options, "Option2", "File"};
  Frame MemberPage{*this, "MemberPage"};
  Label ModuleLabel{*this, "ModuleLabel", "Module"};
  ComboBox ModuleCombo{*this, "ModuleCombo"};
  Label MembersLabel{*this, "MembersLabel", "Members"};
  ListBox MembersList{*this, "MembersList"};
  Frame FilePage{*this, "FilePage"};
  Label FileLabel{*this, "FileLabel", "Filename"};
  TextBox FileText{*this, "FileText"};
  CommandButton SelectFileBtn{*this, "SelectFileBtn", "..."};
  CheckBox AbsolutePathCheck{*this, "AbsolutePathCheck",
                             "File will be in other than output directory (use absolute path)"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

 private:
  Layout layout() override;
  void onLoad() override;
  void onActivate() override;
  bool onQueryClose() override;

  void init(bool isChoiceFree, OptionButton& option);
  void showPage();
  void fillMembers();
  void showLink();
  void selectMember(const std::string& name, const std::string& suffix);
  bool selectEntry(const std::string& entry);
  std::string memberLink() const;
  std::string fileLink() const;
  std::string pickedLink() const;
  void enableOK();
  void pick();
  void selectFile();

  /// Whether the box names a file by a path that doesn't lead into the output folder itself.
  bool isOutside() const;

  Session& session_;
  const Wrapper& member_;
  std::string listedModule_;  // whose members are listed
};

}  // namespace tamrikon
