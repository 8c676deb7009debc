#include "base/case_folding.h"

#include <gtest/gtest.h>

#include "base/keyed_list.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::TextCase;

TEST(LowerCase, CoversTheScripts) {
  struct Case {
    char32_t letter;
    char32_t lower;
  };
  const Case cases[] = {
      {U'A', U'a'},       {U'Z', U'z'},         {U'@', U'@'},     {U'[', U'['},
      {0x00C4, 0x00E4},   {0x00D7, 0x00D7},     {0x00DF, 0x00DF}, {0x00FF, 0x00FF},
      {0x0100, 0x0101},   {0x0101, 0x0101},     {0x0130, U'i'},   {0x0131, 0x0131},
      {0x0139, 0x013A},   {0x013A, 0x013A},     {0x0178, 0x00FF}, {0x01C5, 0x01C6},
      {0x0386, 0x03AC},   {0x03A3, 0x03C3},     {0x03C2, 0x03C2}, {0x0401, 0x0451},
      {0x0416, 0x0436},   {0x0531, 0x0561},     {0x1E9E, 0x00DF}, {0x2126, 0x03C9},
      {0x212A, U'k'},     {0x212B, 0x00E5},     {0xFF21, 0xFF41}, {0x4E2D, 0x4E2D},
      {0x10400, 0x10428}, {0x10FFFF, 0x10FFFF},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(lowerCase(c.letter), c.lower) << std::hex << static_cast<unsigned>(c.letter);
  }
}

TEST(CaseFolding, CapitalsAreThoseOfSingleCharacters) {
  EXPECT_EQ(
      uppered("aZ1 \xE4 \u00E5\u00DF\u00FF \u03BB\u03CC\u03B3\u03BF\u03C2 ad\u0131 \u00B5\u4E2D"),
      "AZ1 \xE4 \u00C5\u00DF\u0178 \u039B\u038C\u0393\u039F\u03A3 ADI \u039C\u4E2D");
}

TEST(CaseFolding, ComparesAndHashesAlike) {
  const auto check = [](const TextCase& c) {
    const std::string text = c["text"];
    const std::string other = c["other"];
    const bool isEqual = c["equal"] == "yes";
    EXPECT_EQ(equalIgnoringCase(text, other), isEqual);
    EXPECT_EQ(startsWithIgnoringCase(text, other), c["begins"] == "yes");
    EXPECT_EQ(CaseInsensitiveHash()(text) == CaseInsensitiveHash()(other), isEqual);
    EXPECT_EQ(lowered(text) == lowered(other), isEqual);
  };
  test::forEachCase("base/ignoring-case.txt", {"text", "other", "equal", "begins"}, check);
}

TEST(Lowered, KeepsWhatIsNoText) {
  EXPECT_EQ(lowered("A\xC9\xFF"
                    "B"),
            "a\xC9\xFF"
            "b");
}

TEST(ReplaceIgnoringCase, FindsByLetter) {
  test::forEachCase("base/replacements-ignoring-case.txt", {"text", "find", "with", "expected"},
                    [](const TextCase& c) {
                      EXPECT_EQ(replaceIgnoringCase(c["text"], c["find"], c["with"]),
                                c["expected"]);
                    });
}

TEST(KeyedList, RefusesAKeyInAnotherCase) {
  KeyedList<int> list;
  EXPECT_TRUE(list.add(1, "\xC3\x84rger"));
  EXPECT_FALSE(list.add(2, "\xC3\xA4RGER"));
  EXPECT_TRUE(list.add(3, "\xC3\x84rge"));
  EXPECT_TRUE(list.add(4, ""));
  EXPECT_EQ(std::vector<int>(list.begin(), list.end()), (std::vector{1, 3, 4}));
  EXPECT_EQ(list.item(3), 4);
  ASSERT_NE(list.find("\xC3\xA4rger"), nullptr);
  *list.find("\xC3\xA4rger") = 5;
  EXPECT_EQ(list.item(1), 5);
  EXPECT_EQ(list.find("3"), nullptr);
  for (int n = 10; n < 2000; ++n) list.add(n, "Key" + std::to_string(n));
  for (int n = 10; n < 2000; ++n) EXPECT_EQ(*list.find("kEY" + std::to_string(n)), n);
}

}  // namespace
}  // namespace tamrikon
