#include "comments/insert_comment_lines.h"

#include <gtest/gtest.h>

#include "comments/word_wrapper.h"
#include "support/fake_module.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::FakeModule;
using test::TextCase;
using Lines = std::vector<std::string>;

TEST(InsertCommentLines, KeepsTheSourceVisualBasic) {
  const auto check = [](const TextCase& c) {
    FakeModule module(c.list("before"));
    insertCommentLines(module, 1, c.has("comment") ? c.list("comment") : Lines{""});
    EXPECT_EQ(module.lines, c.list("after"));
  };
  test::forEachCase("comments/inserted-lines.txt", {"before", "comment", "after"}, check);
}

TEST(WordWrapper, BreaksOneLine) {
  const auto check = [](const TextCase& c) {
    std::string line = c["text"];
    EXPECT_EQ(WordWrapper().getWrappedLine(line, c.number("width")), c.list("lines"));
    EXPECT_EQ(line, "");
  };
  test::forEachCase("comments/wrapped-lines.txt", {"text", "width", "lines"}, check);
}

TEST(WordWrapper, KeepsTheLinesApart) {
  EXPECT_EQ(WordWrapper().makeWordWrapping({"a b c", "", "d", "e f g"}, 3),
            (Lines{"a b", "c", "", "d", "e f", "g"}));
}

}  // namespace
}  // namespace tamrikon
