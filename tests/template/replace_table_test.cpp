#include "template/replace_table.h"

#include <gtest/gtest.h>

#include "template/macro_fixture.h"

namespace tamrikon {
namespace {

TEST(ReplaceStrings, WorksPairByPair) {
  struct Case {
    const char* name;
    std::vector<std::string> table;
    std::string text;
    std::string expected;
  };
  const Case cases[] = {
      {"empty table", {}, "a<b", "a<b"},
      {"one word", {"a"}, "a", "a"},
      {"odd word", {"a", "b", "b"}, "ab", "bb"},
      {"escape first", {"&", "&amp;", "<", "&lt;"}, "a<b&c", "a&lt;b&amp;c"},
      {"escape last sees what was written", {"<", "&lt;", "&", "&amp;"}, "<", "&amp;lt;"},
      {"both cases", {"a", "x"}, "aAb", "xxb"},
      {"case of the word", {"Vb", "Vb"}, "vb VB", "Vb Vb"},
      {"no overlap", {"--", "+"}, "---", "+-"},
      {"signs and letters", {"<B", "[b"}, "<b<<B<c", "[b<[b<c"},
      {"empty word to find", {"", "x", "a", "b"}, "a", "b"},
      {"empty word to put", {"<", ""}, "<a<", "a"},
      {"other byte lengths", {"\xE2\x84\xAA", "k"}, "K\xE2\x84\xAAk", "kkk"},  // Kelvin sign
      {"letter beyond ASCII", {"\xC3\xA9", "e"}, "\xC3\x89t\xC3\xA9", "ete"},
      {"ASCII relative", {"i", "1"}, "\xC4\xB0I", "11"},  // capital I with dot above
      {"dollars are text", {"$", "\\$"}, "$$", "\\$\\$"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(replaceStrings(c.text, c.table), c.expected) << c.name;
  }
}

TEST(ReplaceTable, StopsAtTheEndOfTheBudget) {
  for (const std::string word : {"a", "%", "%%"}) {
    SCOPED_TRACE(word);
    std::vector<std::string> table;
    for (int i = 0; i < 100; ++i) table.insert(table.end(), {word, word + word});
    ExpansionBudget budget(0, 1000);
    std::string result;
    for (int i = 0; i < 3; ++i) ReplaceTable(table).appendReplaced(word, result, budget);
    EXPECT_GT(result.size(), 500U);
    EXPECT_LE(result.size(), 1000 + 3 * word.size());
  }
}

}  // namespace
}  // namespace tamrikon
