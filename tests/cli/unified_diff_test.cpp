#include "cli/unified_diff.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

#include "cli/patching.h"

namespace tamrikon {
namespace {

TEST(UnifiedDiff, ShowsThreeLinesAroundEachChange) {
  using Case = std::tuple<const char*, std::string, std::string, std::string>;
  for (const auto& [name, before, after, diff] : {
           Case{"a new last line", "1\n2\n3\n4\r\n5", "1\n2\n3\n4\r\n5\n6",
                "@@ -2,4 +2,5 @@\n 2\n 3\n 4\r\n-5\n\\ No newline at end of file\n+5\n+6\n"
                "\\ No newline at end of file\n"},
           Case{"contexts are apart", "1\n2\n3\n4\n5\n6\n7\n", "x\n1\n2\n3\n4\n5\n6\n7\ny\n",
                "@@ -1,3 +1,4 @@\n+x\n 1\n 2\n 3\n@@ -5,3 +6,4 @@\n 5\n 6\n 7\n+y\n"},
           Case{"exchanges", "a\nb\nc\nb\ne\n", "a\nx\nc\ny\nz\ne\n",
                "@@ -1,5 +1,6 @@\n a\n-b\n+x\n c\n-b\n+y\n+z\n e\n"},
       }) {
    EXPECT_EQ(unifiedDiff("my file", before, after), "--- my file\t\n+++ my file\t\n" + diff)
        << name;
  }
  EXPECT_EQ(unifiedDiff("a\"\n", "", "x"),
            "--- \"a\\\"\\012\"\n+++ \"a\\\"\\012\"\n@@ -0,0 +1 @@\n+x\n"
            "\\ No newline at end of file\n");
}

TEST(UnifiedDiff, LeadsFromAnyTextToAnyOther) {
  std::mt19937 random(7);
  const auto randomText = [&](std::size_t lines, std::size_t words) {
    std::string text;
    for (; lines > 0; --lines) text += std::to_string(random() % words) + "\n";
    if (!text.empty() && random() % 3 == 0) text.pop_back();
    return text;
  };
  for (std::size_t round = 0; round < 3000; ++round) {
    const std::size_t words = 2 + round % 12 + (round == 1 ? 50000 : 0);
    const std::string before = randomText(round < 2 ? 30000 : random() % 25, words);
    const std::string after = randomText(round < 2 ? 40000 : random() % 25, words);
    const std::string diff = unifiedDiff("f", before, after);
    ASSERT_EQ(test::patched(before, diff), after) << before << "---\n" << after << diff;
  }
}

}  // namespace
}  // namespace tamrikon
