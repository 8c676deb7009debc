#include "comments/word_wrapper.h"

#include <gtest/gtest.h>

namespace tamrikon {
namespace {

using Lines = std::vector<std::string>;

TEST(WordWrapper, BreaksOneLine) {
  struct Case {
    const char* name;
    std::string line;
    int width;
    Lines pieces;
  };
  for (const Case& c : {
           Case{"empty", "", 5, {""}},
           Case{"fits", "ab cd", 5, {"ab cd"}},
           Case{"blank right behind the width", "abcde ", 5, {"abcde"}},
           Case{"blank in reach", "ab cd ef", 5, {"ab cd", "ef"}},
           Case{"blank before it", "ab cde f", 5, {"ab", "cde f"}},
           Case{"two blanks", "abc  def", 5, {"abc ", "def"}},
           Case{"long word", "ab abcdefgh c", 5, {"ab", "abcdefgh", "c"}},
           Case{"nowhere", "abcdefgh", 5, {"abcdefgh"}},
           Case{"leading blank", " abcdefgh", 5, {"", "abcdefgh"}},
           Case{"tab within, blank beyond", "ab\tcdefg h", 5, {"ab", "cdefg", "h"}},
           Case{"blank beats a nearer tab", "a bc\tdef", 5, {"a", "bc", "def"}},
           Case{"blank beyond beats a nearer tab", "abcdefg\th i", 5, {"abcdefg\th", "i"}},
           Case{"tab beyond", "abcdefg\th", 5, {"abcdefg", "h"}},
           Case{"tag and a long word", "@see          .abcd", 16, {"@see         ", ".abcd"}},
           Case{"characters, not bytes", "äöü äöü ä", 7, {"äöü äöü", "ä"}},
           Case{"no width", "ab cd", 0, {"ab cd"}},
           Case{"switched off", "ab cd", -3, {"ab cd"}},
       }) {
    std::string line = c.line;
    EXPECT_EQ(WordWrapper().getWrappedLine(line, c.width), c.pieces) << c.name;
    EXPECT_EQ(line, "") << c.name;
  }
}

TEST(WordWrapper, KeepsTheLinesApart) {
  EXPECT_EQ(WordWrapper().makeWordWrapping({"a b c", "", "d", "e f g"}, 3),
            (Lines{"a b", "c", "", "d", "e f", "g"}));
}

}  // namespace
}  // namespace tamrikon
