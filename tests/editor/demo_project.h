// A project on disk (the folder demo) and a user who edits its comments.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>

#include "base/text.h"
#include "editor/edit_comment.h"
#include "editor/edit_comment_options.h"
#include "editor/interest_links.h"
#include "editor/lost_lines_dlg.h"
#include "editor/open_comment_editor.h"
#include "editor/reference_select_dlg.h"
#include "support/open_project.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"
#include "support/test_session.h"

namespace tamrikon::test {

class DemoProject : public testing::Test {
 protected:
  DemoProject() {
    std::filesystem::copy(TAMRIKON_EDITOR_DEMO, folder_.path());
    ide_ = openProject(folder_ / "Demo.vbp");
    session_.settingsFile.setDefaultSettings(*ide_);
    session_.settings.outputPath = folder_ / "out";
  }

  CodeModule& module(const std::string& name) const {
    return **session_.settings.comModules.find(name);
  }
  std::string source() const {
    CodeModule& store = module("Store");
    return replaceAll(store.Lines(1, store.CountOfLines()), "\r", "");
  }

  /// The line of the class Store that holds `text`.
  int lineOf(const std::string& text) const {
    const std::string lines = source();
    return 1 +
           static_cast<int>(std::count(
               lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(lines.find(text)), '\n'));
  }

  /// Puts the caret there.
  void goTo(const std::string& text) {
    CodePane& pane = module("Store").CodePane();
    const int line = lineOf(text);
    pane.SetSelection({line, 3, line, 3});
    ide_->setActiveCodePane(pane);
  }

  static const char* nameOf(EditComment*) { return "EditComment"; }
  static const char* nameOf(EditCommentOptions*) { return "EditCommentOptions"; }
  static const char* nameOf(LostLinesDlg*) { return "LostLinesDlg"; }
  static const char* nameOf(InterestLinks*) { return "InterestLinks"; }
  static const char* nameOf(ReferenceSelectDlg*) { return "ReferenceSelectDlg"; }

  /// Opens the editor on the member that `text` is in.
  void edit(const std::string& text, const std::function<void(User&, EditComment&)>& script,
            const EditGrouping& group = {}) {
    goTo(text);
    onDialog<EditComment>(script);
    openCommentEditor(toolkit_, session_, *ide_, group);
  }

  /// Plays the user in the next dialog, a `T`.
  template <typename T>
  void onDialog(std::function<void(User&, T&)> script) {
    toolkit_.onDialog(nameOf(static_cast<T*>(nullptr)),
                      [script](User& user) { script(user, static_cast<T&>(user.dialog())); });
  }

  TempFolder folder_;
  ScriptedToolkit toolkit_;
  TestSession session_{toolkit_};
  std::unique_ptr<HostIde> ide_;
};

}  // namespace tamrikon::test
