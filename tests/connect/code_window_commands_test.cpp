// The commands of the code window, on a class with the caret or a selection in it.
#include <gtest/gtest.h>

#include <array>
#include <tuple>

#include "connect/add_comment_at_cursor.h"
#include "connect/copy_selection_as_code.h"
#include "support/open_project.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

class CodeWindowCommandsTest : public testing::Test {
 protected:
  /// A project of one class, whose window isn't open.
  void open(const std::string& source) {
    folder_.put("Cart.cls", source);
    ide_ = test::openProject(folder_.put("Shop.vbp", "Type=Exe\nClass=Cart; Cart.cls\n"));
  }
  CodeModule& module() { return *ide_->VBProjects().Item(1).VBComponents().Item(1).CodeModule(); }
  std::string text() { return module().Lines(1, module().CountOfLines()); }
  void select(const Selection& selection) { module().CodePane().SetSelection(selection); }

  test::TempFolder folder_;
  test::ScriptedToolkit toolkit_;
  std::unique_ptr<HostIde> ide_;
  ProjectSettings settings_;
};

TEST_F(CodeWindowCommandsTest, CopiesWhatIsSelected) {
  open("Sub A()\n  é$ = 1\n' said\n\n");
  using Case = std::tuple<const char*, Selection, std::string>;
  for (const auto& [name, selection, code] : {
           Case{"characters of one line, backwards", {2, 5, 2, 3}, "'é$\r"},
           Case{"up to the start of a line",
                {1, 50, 4, 1},
                "'$EOL$\r'  é$ = 1$EOL$\r'' said$EOL$\r'\r"},
       }) {
    select(selection);
    copySelectionAsCode(*ide_, toolkit_);
    EXPECT_EQ(toolkit_.clipboard, "'$CODE$\r" + code + "'$END-CODE$") << name;
  }
}

TEST_F(CodeWindowCommandsTest, KeepsTheClipboardWhenThereIsNothingToCopy) {
  open(std::string(32768, '\n'));
  toolkit_.clipboard = "mine";
  copySelectionAsCode(*ide_, toolkit_);  // no window
  select({32768, 1, 1, 1});
  copySelectionAsCode(*ide_, toolkit_);
  EXPECT_EQ(toolkit_.clipboard, "mine") << "beyond what a module can hold";
  select({32767, 1, 32767, 1});
  copySelectionAsCode(*ide_, toolkit_);
  EXPECT_EQ(toolkit_.clipboard, "'$CODE$\r'\r'$END-CODE$");
}

TEST_F(CodeWindowCommandsTest, AddsTheCommentOfWhatTheCaretStandsIn) {
  const std::string declarations = "Option Explicit\r\nPublic Total As _\r\n  Long\r\n";
  const std::string fill = "    Sub Fill()\r\n\r\n    End Sub";
  open(declarations + fill);
  addCommentAtCursor(*ide_, settings_);  // no window
  select({5, 1, 5, 2});
  addCommentAtCursor(*ide_, settings_);
  EXPECT_EQ(text(), declarations + fill);
  for (const auto& [line, caretLine, caretColumn] :
       {std::array{5, 5, 6}, std::array{3, 3, 2}, std::array{1, 2, 2}}) {
    select({line, 1, line, 1});
    addCommentAtCursor(*ide_, settings_);
    const Selection caret = module().CodePane().GetSelection();
    EXPECT_EQ(std::pair(caret.startLine, caret.startColumn), std::pair(caretLine, caretColumn));
  }
  EXPECT_EQ(text(),
            "'**\r\n'\r\n'@see\r\nOption Explicit\r\n'**\r\n'\r\n'@see\r\nPublic Total As _\r\n"
            "  Long\r\n    '**\r\n    '\r\n    '@see          \r\n    '@rem          \r\n" +
                fill);
}

}  // namespace
}  // namespace tamrikon
