#include "comments/insert_comment_lines.h"

#include <gtest/gtest.h>

#include <tuple>

#include "comments/word_wrapper.h"
#include "support/fake_module.h"

namespace tamrikon {
namespace {

using test::FakeModule;
using Lines = std::vector<std::string>;

TEST(InsertCommentLines, KeepsTheSourceVisualBasic) {
  using Case = std::tuple<const char*, Lines, Lines, Lines>;
  for (const auto& [name, before, comment, after] : {
           Case{"breaks",
                {" X"},
                {"a\r\n\rb", "c\nd"},
                {" '**", " 'a", " '", " 'b", " 'c", " 'd", " X"}},
           Case{"continues", {"X"}, {"a _", "b _"}, {"'**", "'a _", "'b _ ", "X"}},
           Case{"no second marker", {"X"}, {"** a", "**"}, {"'**", "' ** a", "' **", "X"}},
           Case{"empty module", {}, {""}, {"'**", "'"}},
       }) {
    FakeModule module(before);
    insertCommentLines(module, 1, comment);
    EXPECT_EQ(module.lines, after) << name;
  }
}

TEST(WordWrapper, BreaksOneLine) {
  using Case = std::tuple<const char*, std::string, int, Lines>;
  for (const auto& [name, text, width, pieces] : {
           Case{"blank in reach", "ab cd ef", 5, {"ab cd", "ef"}},
           Case{"blank before it", "ab cde f", 5, {"ab", "cde f"}},
           Case{"long word", "ab abcdefgh c", 5, {"ab", "abcdefgh", "c"}},
           Case{"leading blank", " abcdefgh", 5, {"", "abcdefgh"}},
           Case{"tab within, blank beyond", "ab\tcdefg h", 5, {"ab", "cdefg", "h"}},
           Case{"blank beats a nearer tab", "a bc\tdef", 5, {"a", "bc", "def"}},
           Case{"blank beyond beats a nearer tab", "abcdefg\th i", 5, {"abcdefg\th", "i"}},
           Case{"characters, not bytes", "äöü äöü ä", 7, {"äöü äöü", "ä"}},
           Case{"no width", "ab cd", 0, {"ab cd"}},
       }) {
    std::string line = text;
    EXPECT_EQ(WordWrapper().getWrappedLine(line, width), pieces) << name;
    EXPECT_EQ(line, "") << name;
  }
}

TEST(WordWrapper, KeepsTheLinesApart) {
  EXPECT_EQ(WordWrapper().makeWordWrapping({"a b c", "", "d", "e f g"}, 3),
            (Lines{"a b", "c", "", "d", "e f", "g"}));
}

}  // namespace
}  // namespace tamrikon
