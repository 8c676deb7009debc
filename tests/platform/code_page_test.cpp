#include "platform/code_page.h"

#include <gtest/gtest.h>

#include "platform/text_decoding.h"

namespace tamrikon {
namespace {

TEST(CodePage, KnowsTheWindowsPages) {
  struct Case {
    int page;
    const char* bytes;
    const char* text;
  };
  for (const Case& c : {
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
           Case{932, "\xB1\x81\x5B\x82\x60", "ｱーＡ"},
           Case{932, "\xFA\x40\x87\x54", "ⅰⅠ"},
           Case{936, "\xD6\xD0\x80\x81\x5C", "中€乗"},
           Case{949, "\xC7\xD1\x8C\x63", "한똠"},
           Case{950, "\xA4\xA4\xA5\x5C\xA4\x51", "中功十"},
       }) {
    SCOPED_TRACE(c.page);
    const CodePage* page = CodePage::find(c.page);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->decode(c.bytes), c.text);
    EXPECT_EQ(page->encode(c.text), c.bytes);
  }
}

TEST(CodePage, ReadsUndefinedBytesAsControlsAndWritesThemBack) {
  struct Case {
    int page;
    const char* bytes;
    const char* text;
  };
  for (const Case& c : {
           Case{1252, "a\x81\x9D!", "a\u0081\u009D!"},
           Case{1253, "\xAA\xD2", "\u00AA\u00D2"},
           Case{874, "\x81\xFC", "\u0081\u00FC"},
           Case{932, "\x81", "\u0081"},      // the text ends behind a lead byte
           Case{932, "\x81\n", "\u0081\n"},  // a lead byte that nothing can follow
           Case{950, "\x81 x", "\u0081 x"},
       }) {
    const CodePage& page = *CodePage::find(c.page);
    EXPECT_EQ(page.decode(c.bytes), c.text) << c.page;
    EXPECT_EQ(page.encode(c.text), c.bytes) << c.page;
  }
}

TEST(CodePage, TellsCharactersThatItLacks) {
  struct Case {
    int page;
    const char* text;
    const char* encoded;
    std::size_t lacking;
  };
  for (const Case& c : {
           Case{1252, "a€\u03A9b", "a\x80?b", 4},
           Case{1251, "\xC3\x80", "?",
                0},  // À: its number is a byte of the page, for another letter
           Case{932, "\xC2\xA2", "?", 0},
           Case{949, "x\xF0\x9F\x98\x80", "x?", 1},
       }) {
    const CodePage& page = *CodePage::find(c.page);
    EXPECT_EQ(page.encode(c.text), c.encoded);
    std::size_t lacking = 99;
    EXPECT_FALSE(page.encodeExactly(c.text, lacking));
    EXPECT_EQ(lacking, c.lacking);
  }
  EXPECT_EQ(CodePage::find(437), nullptr);
}

TEST(DecodeText, ChoosesUtf8WhereTheBytesAreUtf8) {
  struct Case {
    const char* bytes;
    const char* text;
    TextEncoding encoding;
  };
  for (const Case& c : {
           Case{"plain", "plain", TextEncoding::codePage},
           Case{"\xC3\xA4", "ä", TextEncoding::utf8},
           Case{"\xC3\xA4\xE4", "Ã¤ä", TextEncoding::codePage},
           Case{"\xEF\xBB\xBFx", "x", TextEncoding::utf8WithMark},
           Case{"\xEF\xBB\xBF\xC3\xA4\xE4", "ä\u00E4", TextEncoding::utf8WithMark},
       }) {
    const DecodedText decoded = decodeText(c.bytes, *CodePage::find(1252));
    EXPECT_EQ(decoded.text, c.text);
    EXPECT_EQ(decoded.encoding, c.encoding) << c.text;
  }
}

}  // namespace
}  // namespace tamrikon
