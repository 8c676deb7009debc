#include "template/replace_table.h"

#include <gtest/gtest.h>

#include <tuple>

#include "template/macro_fixture.h"

namespace tamrikon {
namespace {

TEST(ReplaceStrings, WorksPairByPair) {
  using Case = std::tuple<const char*, std::vector<std::string>, std::string, std::string>;
  const Case cases[] = {
      {"odd word", {"a", "b", "b"}, "ab", "bb"},
      {"escape first", {"&", "&amp;", "<", "&lt;"}, "a<b&c", "a&lt;b&amp;c"},
      {"both cases", {"a", "x"}, "aAb", "xxb"},
      {"no overlap", {"--", "+"}, "---", "+-"},
      {"signs and letters", {"<B", "[b"}, "<b<<B<c", "[b<[b<c"},
      {"empty word to find", {"", "x", "a", "b"}, "a", "b"},
      {"empty word to put", {"<", ""}, "<a<", "a"},
      {"letter beyond ASCII", {"\xC3\xA9", "e"}, "\xC3\x89t\xC3\xA9", "ete"},
      {"ASCII relative", {"i", "1"}, "\xC4\xB0I", "11"},  // capital I with dot above
  };
  for (const auto& [name, table, text, expected] : cases) {
    EXPECT_EQ(replaceStrings(text, table), expected) << name;
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

TEST(ReplaceTable, TakesEachWalkThroughATextThatGrewFromTheBudget) {
  std::vector<std::string> table;
  for (int i = 0; i < 10; ++i) table.insert(table.end(), {"a", "aa"});
  for (int i = 0; i < 1000; ++i) table.insert(table.end(), {"a", "b", "b", "a"});
  ExpansionBudget budget(0, 100'000);
  std::string result;
  ReplaceTable(table).appendReplaced("a", result, budget);
  EXPECT_LT(budget.textLeft(), 1024U);
}

}  // namespace
}  // namespace tamrikon
