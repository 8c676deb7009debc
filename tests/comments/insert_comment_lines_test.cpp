#include "comments/insert_comment_lines.h"

#include <gtest/gtest.h>

#include "comments/comment_finder.h"
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
  EXPECT_EQ(caret.startLine, 3);
  EXPECT_EQ(caret.startColumn, 6);
  EXPECT_EQ(caret.endLine, 3);
  EXPECT_EQ(caret.endColumn, 6);
}

TEST(InsertCommentLines, KeepsTheSourceVisualBasic) {
  struct Case {
    const char* name;
    Lines before;
    Lines comment;
    Lines after;
  };
  for (const Case& c : {
           Case{"line breaks",
                {" X"},
                {"a\r\n\r\nb", "c\rd\n"},
                {" '**", " 'a", " '", " 'b", " 'c", " 'd", " '", " X"}},
           Case{"continuation mark at the end",
                {"X"},
                {"a _", "b _"},
                {"'**", "'a _", "'b _ ", "X"}},
           Case{"a tab is no indent", {"\tX"}, {""}, {"'**", "'", "\tX"}},
           Case{"no lines", {"X"}, {}, {"'**", "X"}},
           Case{"empty module", {}, {""}, {"'**", "'"}},
       }) {
    FakeModule module(c.before);
    insertCommentLines(module, 1, c.comment);
    EXPECT_EQ(module.lines, c.after) << c.name;
  }
}

TEST(InsertCommentLines, PutsTheNewerCommentNextToTheDeclaration) {
  FakeModule module({"Sub S()"});
  insertCommentLines(module, 1, {"old"});
  insertCommentLines(module, 3, {"new"});
  const ModuleLines lines(module);
  EXPECT_EQ(commentBody(lines, *getCommentRange(lines, 5)), Lines{"'new"});
}

TEST(InsertCommentLines, KeepsTheCommentWhenTheWindowFails) {
  FakeModule module({"Sub S()"});
  module.pane.fails = true;
  EXPECT_THROW(insertCommentLines(module, 1, {""}), IdeError);
  EXPECT_EQ(module.CountOfLines(), 3);
}

}  // namespace
}  // namespace tamrikon
