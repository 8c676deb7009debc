// The dialog "Options": all settings of the active project but those of the comment editor, and
// the way into a compile.
#pragma once

#include <string>
#include <vector>

#include "compiler/session.h"
#include "dialogs/comment_page.h"
#include "dialogs/compile_page.h"
#include "dialogs/misc_page.h"
#include "dialogs/options_owner.h"
#include "dialogs/output_page.h"
#include "toolkit/buttons.h"
#include "toolkit/containers.h"
#include "toolkit/dialog.h"

namespace tamrikon {

/// It works on a copy of the session's settings, and changes them on Apply, OK and the two compile
/// buttons alone; those also write the settings file. One dialog can be shown again and again.
class frmAddIn final : public Dialog {
 public:
  /// Both must outlive the dialog.
  frmAddIn(Toolkit& toolkit, Session& session);

  // Both are set before fillValues().
  VBE* VBInstance = nullptr;
  OptionsOwner* connect = nullptr;

  /// Copies the settings and shows them; called before the dialog is shown. Without an active
  /// project only "Help" and "Cancel" are enabled.
  void fillValues();

  /// Lets the user choose a folder; empty if that was cancelled.
  std::string browseForFolder(const std::string& prompt, const std::string& start);

  /// `text` trimmed if it is a name of letters and digits, otherwise "user" and `index`.
  static std::string validateTagName(const std::string& text, int index);

 private:
  ProjectSettings copy_;  // what the controls don't hold until Apply

 public:
  TabStrip tbsOptions{
      *this,
      "tbsOptions",
      {{"Group1", "Compile", "Compile options"},
       {"Group2", "Comment",
        "Select the fields or tags that will be automatically added to comment when using \"Add "
        "Tamrikon\" command from pop-up menu."},
       {"Group3", "Output", "Set output path and format"},
       {"Group4", "Miscellanous", "Indent mode and title page text"}}};
  CompilePage compilePage{*this};
  CommentPage commentPage;
  OutputPage outputPage;
  MiscPage miscPage;

  CommandButton Command4{*this, "Command4", "Help"};
  CommandButton Command1{*this, "Command1", "Compile"};
  CommandButton Command14{*this, "Command14", "Compile Group"};
  CommandButton cmdApply{*this, "cmdApply", "Apply"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};

 private:
  struct CheckBoxSetting {
    CheckBox& box;
    bool ProjectSettings::*setting;
  };

  Layout layout() override;
  bool onQueryClose() override;
  void onKeyDown(KeyEvent& key) override;
  std::vector<CheckBoxSetting> checkBoxes();
  void addHandlers();
  void showProject();
  void apply();

  /// A path that isn't absolute is one from the folder of the project, and an empty one is that of
  /// the default.
  std::string inProject(const std::string& folder) const;

  /// Tells of a failure.
  void createOutputFolder();
  void requestCompile(bool wholeGroup);

  Session& session_;
};

}  // namespace tamrikon
