#include "platform/code_page.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tamrikon {
namespace {

TEST(CodePage, ReadsBytesAndWritesThemBack) {
  using Case = std::tuple<int, const char*, const char*>;
  for (const auto& [number, bytes, text] : {
           Case{1250, "\x9C\xB9\xE1", "śąá"},
           Case{1251, "\xCF\xF0\xE8\xB8", "Приё"},
           Case{1252, "\x80\x93\xFC", "€“ü"},
           Case{1253, "\xC1\xF9", "Αω"},
           Case{1254, "\xD0\xFD", "Ğı"},
           Case{1255, "\xE0\xFA", "את"},
           Case{1256, "\x81\xC7", "پا"},
           Case{1257, "\xF0\xFE", "šž"},
           Case{1258, "\xD5\xFE", "Ơ₫"},
           Case{874, "\x80\xA1\xFB", "€ก๛"},
           Case{932, "\x83\x5C\x95\x5C", "ソ表"},  // second bytes that look like backslashes
           Case{932, "\xFA\x40\x87\x54", "ⅰⅠ"},
           Case{936, "\xD6\xD0\x80\x81\x5C", "中€乗"},
           Case{949, "\xC7\xD1\x8C\x63", "한똠"},
           Case{950, "\xA4\xA4\xA5\x5C\xA4\x51", "中功十"},
           // Undefined bytes are read as controls.
           Case{1252, "a\x81\x9D!", "a\u0081\u009D!"},
           Case{932, "\x81", "\u0081"},      // the text ends behind a lead byte
           Case{932, "\x81\n", "\u0081\n"},  // a lead byte that nothing can follow
           Case{950, "\x81 x", "\u0081 x"},
       }) {
    SCOPED_TRACE(number);
    const CodePage* page = CodePage::find(number);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->decode(bytes), text);
    EXPECT_EQ(page->encode(text), bytes);
  }
}

TEST(CodePage, TellsCharactersThatItLacks) {
  using Case = std::tuple<int, const char*, const char*, std::size_t>;
  for (const auto& [number, text, encoded, expectedLacking] : {
           Case{1252, "a€\u03A9b", "a\x80?b", 4},
           Case{1251, "\xC3\x80", "?",
                0},  // À: its number is a byte of the page, for another letter
           Case{949, "x\xF0\x9F\x98\x80", "x?", 1},
           Case{932, "\u00E0\"\u00E0\\\"", "\xE0\"?\\\"", 3},  // a lead byte and a trail byte
           Case{932, "\u00E0\u00E0\\x", "??\\x", 0},
       }) {
    const CodePage& page = *CodePage::find(number);
    EXPECT_EQ(page.encode(text), encoded);
    std::size_t lacking = 99;
    EXPECT_FALSE(page.encodeExactly(text, lacking));
    EXPECT_EQ(lacking, expectedLacking);
  }
  EXPECT_EQ(CodePage::find(437), nullptr);
}

}  // namespace
}  // namespace tamrikon
