#include "base/text.h"

#include <gtest/gtest.h>

#include "base/paths.h"
#include "base/utf8.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::TextCase;
using Views = std::vector<std::string_view>;

TEST(Text, TrimsBlanksAlone) {
  EXPECT_EQ(trim("  \ta \r "), "\ta \r");
  EXPECT_EQ(trimLeading("  a "), "a ");
  EXPECT_EQ(trimTrailing("  a "), "  a");
  EXPECT_EQ(trim("   "), "");
}

TEST(Text, DividesAndReplaces) {
  EXPECT_EQ(split("a,,b,", ','), (Views{"a", "", "b", ""}));
  EXPECT_EQ(split("", ','), (Views{""}));
  EXPECT_EQ(join({"", "a", ""}, ", "), ", a, ");
  EXPECT_EQ(replaceAll("aaa", "aa", "aab"), "aaba");
  EXPECT_EQ(doubleDollars("$a$$"), "$$a$$$$");
  std::string_view text = "a,,b";
  EXPECT_EQ(cutField(text, ','), "a");
  EXPECT_EQ(cutField(text, ','), "");
  EXPECT_EQ(cutField(text, ','), "b");
  EXPECT_EQ(text, "");
}

TEST(Paths, AcceptBothSeparators) {
  test::forEachCase("base/paths.txt", {"path", "folder", "file", "base"}, [](const TextCase& c) {
    EXPECT_EQ(folderOf(c["path"]), c["folder"]);
    EXPECT_EQ(lastName(c["path"]), c["file"]);
    EXPECT_EQ(baseName(c["path"]), c["base"]);
  });
  EXPECT_FALSE(hasExtension("x.y/z"));
  EXPECT_EQ(joinPath("C:\\a", "b"), "C:\\a\\b");
  EXPECT_EQ(joinPath("C:\\a/", "b"), "C:\\a/b");
  EXPECT_EQ(withoutTrailingSeparator("a//"), "a/");
  for (const char* path : {"/a", "\\a", "C:\\a", "c:a"}) EXPECT_TRUE(isAbsolutePath(path)) << path;
  for (const char* path : {"a/b", "", "C", "..\\a"}) EXPECT_FALSE(isAbsolutePath(path)) << path;
}

TEST(Utf8, AcceptsWellFormedTextOnly) {
  for (const char* text : {"", "abc", "\xC2\x80", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEF\xBF\xBF",
                           "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(isValidUtf8(text)) << text;
  }
  // Overlong forms, surrogates, too large, cut short, stray.
  for (const char* text : {"\xC0\xAF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80",
                           "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC3", "a\xE2\x82", "\x80"}) {
    EXPECT_FALSE(isValidUtf8(text)) << text;
  }
}

TEST(Utf8, ReadsWhatItWrites) {
  const std::u32string all = U"a\u0080\u07FF\u0800\uFFFD\U00010000\U0010FFFF";
  std::string text;
  for (const char32_t c : all) appendCodePoint(text, c);
  text += "\xE9z";  // a stray byte stands for itself
  std::u32string read;
  for (std::size_t offset = 0; offset < text.size();) read += readCodePoint(text, offset);
  EXPECT_EQ(read, all + U"\u00E9z");
  EXPECT_EQ(codePointCount("a\xC3\xA9\xE2\x82\xAC"), 3U);
  EXPECT_TRUE(isAscii("12345678abc"));
  EXPECT_FALSE(isAscii("12345678ab\x80"));
  EXPECT_FALSE(
      isAscii("1234567\xFF"
              "abc"));
}

}  // namespace
}  // namespace tamrikon
