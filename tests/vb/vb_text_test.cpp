#include "vb/vb_text.h"

#include <gtest/gtest.h>

#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::TextCase;

TEST(InStrOutsideQuotes, SkipsLiterals) {
  const auto check = [](const TextCase& c) {
    const auto start = static_cast<std::size_t>(c.number("start"));
    EXPECT_EQ(inStrOutsideQuotes(c["text"], c["word"], start), std::size_t(c.number("place")));
  };
  test::forEachCase("vb/places-outside-quotes.txt", {"text", "word", "start", "place"}, check);
}

TEST(VbText, KnowsCommentsBlanksAndContinuations) {
  EXPECT_EQ(stripLineComment("x = \"it's\"  ' isn't"), "x = \"it's\"");
  EXPECT_EQ(stripLineComment("x \t' c"), "x \t");
  EXPECT_EQ(firstWhitespace("ab\tc d"), 3U);
  EXPECT_EQ(firstWhitespace("ab"), 0U);
  EXPECT_EQ(firstWhitespaceOutsideStrings("\"a b\"\tc d"), 6U);
  EXPECT_EQ(firstWhitespaceOutsideStrings("\"a b\tc\" d"), 8U);
  EXPECT_TRUE(isContinued("a _"));
  for (const char* line : {"a_", "a\t_", "a _ ", "_", ""}) EXPECT_FALSE(isContinued(line)) << line;
}

}  // namespace
}  // namespace tamrikon
