// A project on disk and a user who edits its comments.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>

#include "base/text.h"
#include "editor/edit_comment.h"
#include "editor/open_comment_editor.h"
#include "host/host_ide.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"

namespace tamrikon::test {

class DemoProject : public testing::Test {
 protected:
  DemoProject() {
    folder_.put(
        "Store.cls",
        "'**\n'The store.\nImplements IKeep\n"
        "Private mShelf As New Shelf, mOther As ikeep 'As Tools\n"
        "Private mOne As New Shelf 'one\n"
        "Public Event Filled(ByVal Where As Shelf)\n"
        "\n"
        "  '**\n  'Adds an item.\n  '@param key  Required. Integer. The key.\n"
        "  '@param item The item.\n  '@set key A 1 first\n  '@see Shelf the place\n"
        "  Public Function Add(ByVal key As Long, item As Variant, Optional n As Long = 3, _\n"
        "      Optional s As Shelf) As Boolean\n"
        "    Static a As Tools, b As New _\n      Store, t As String\n"
        "  End Function\n"
        "Public Property Get Count() As Long\nEnd Property\n"
        "Public Property Let Count(ByVal value As Long)\nEnd Property\n"
        "Public Sub Clear()\nEnd Sub\n");
    folder_.put("Shelf.cls",
                "implements Store\n  Implements  store 'old\nPublic Sub Go()\nEnd Sub\n");
    folder_.put("IKeep.cls", "Public Sub Keep()\nEnd Sub\n");
    folder_.put("Tools.bas", "Public Const Max = 3\n");
    const std::string project = folder_.put(
        "Demo.vbp",
        "Name=\"Demo\"\nClass=Store; Store.cls\nClass=Shelf; Shelf.cls\nClass=IKeep; IKeep.cls\n"
        "Module=Tools; Tools.bas\n");
    std::string why;
    ide_ = HostIde::open(
        nativeFileSystem(), project, nullptr, [](const std::string&) {}, why);
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

  using Script = std::function<void(User&, EditComment&)>;

  /// Opens the editor on the member that `text` is in.
  void edit(const std::string& text, const Script& script, const EditGrouping& group = {}) {
    goTo(text);
    toolkit_.onDialog("EditComment",
                      [&](User& user) { script(user, static_cast<EditComment&>(user.dialog())); });
    openCommentEditor(session_, *ide_, group);
  }

  /// Runs the next dialog of type `T`.
  template <typename T, typename DialogScript>
  void onDialog(const std::string& name, DialogScript script) {
    toolkit_.onDialog(name, [script](User& user) { script(user, static_cast<T&>(user.dialog())); });
  }

  TempFolder folder_;
  ScriptedToolkit toolkit_;
  Session session_{toolkit_, nativeFileSystem(), nativeProcessServices(), "/data"};
  std::unique_ptr<HostIde> ide_;
};

}  // namespace tamrikon::test
