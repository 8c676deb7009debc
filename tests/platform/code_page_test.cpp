#include "platform/code_page.h"

#include <gtest/gtest.h>

#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::TextCase;

TEST(CodePage, ReadsBytesAndWritesThemBack) {
  const auto check = [](const TextCase& c) {
    const CodePage* page = CodePage::find(c.number("codePage"));
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->decode(c["bytes"]), c["text"]);
    EXPECT_EQ(page->encode(c["text"]), c["bytes"]);
  };
  test::forEachCase("platform/code-pages.txt", {"codePage", "bytes", "text"}, check);
}

TEST(CodePage, TellsCharactersThatItLacks) {
  const auto check = [](const TextCase& c) {
    const CodePage& page = *CodePage::find(c.number("codePage"));
    EXPECT_EQ(page.encode(c["text"]), c["bytes"]);
    std::size_t lacking = 99;
    EXPECT_FALSE(page.encodeExactly(c["text"], lacking));
    EXPECT_EQ(lacking, std::size_t(c.number("place")));
  };
  test::forEachCase("platform/lacking-characters.txt", {"codePage", "text", "bytes", "place"},
                    check);
  EXPECT_EQ(CodePage::find(437), nullptr);
}

}  // namespace
}  // namespace tamrikon
