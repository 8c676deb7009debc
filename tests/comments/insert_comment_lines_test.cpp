#include "comments/insert_comment_lines.h"

#include <gtest/gtest.h>

#include "support/fake_module.h"

namespace tamrikon {
namespace {

using test::FakeModule;
using Lines = std::vector<std::string>;

TEST(InsertCommentLines, WritesAboveTheDeclarationWithItsIndent) {
  FakeModule module({"Option Explicit", "    Sub S()"});
  insertCommentLines(module, 2, {"text", " @see"});
  EXPECT_EQ(module.lines,
            (Lines{"Option Explicit", "    '**", "    'text", "    ' @see", "    Sub S()"}));
  EXPECT_EQ(module.pane.topLine, 2);
  const Selection caret = module.pane.selection;
  EXPECT_EQ(std::pair(caret.startLine, caret.startColumn), std::pair(3, 6));
  EXPECT_EQ(std::pair(caret.endLine, caret.endColumn), std::pair(3, 6));
}

TEST(InsertCommentLines, KeepsTheSourceVisualBasic) {
  struct Case {
    const char* name;
    Lines before, comment, after;
  };
  for (const Case& c : {
           Case{"breaks",
                {" X"},
                {"a\r\n\rb", "c\nd"},
                {" '**", " 'a", " '", " 'b", " 'c", " 'd", " X"}},
           Case{"continues", {"X"}, {"a _", "b _"}, {"'**", "'a _", "'b _ ", "X"}},
           Case{"no second marker", {"X"}, {"** a", "**"}, {"'**", "' ** a", "' **", "X"}},
           Case{"a tab is no indent", {"\tX"}, {""}, {"'**", "'", "\tX"}},
           Case{"no lines", {"X"}, {}, {"'**", "X"}},
           Case{"empty module", {}, {""}, {"'**", "'"}},
       }) {
    FakeModule module(c.before);
    insertCommentLines(module, 1, c.comment);
    EXPECT_EQ(module.lines, c.after) << c.name;
  }
}

TEST(InsertCommentLines, KeepsTheCommentWhenTheWindowFails) {
  FakeModule module({"Sub S()"});
  module.pane.fails = true;
  EXPECT_THROW(insertCommentLines(module, 1, {""}), IdeError);
  EXPECT_EQ(module.CountOfLines(), 3);
}

}  // namespace
}  // namespace tamrikon
