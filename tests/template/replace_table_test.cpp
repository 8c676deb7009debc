#include "template/replace_table.h"

#include <gtest/gtest.h>

#include "support/text_cases.h"
#include "template/macro_fixture.h"

namespace tamrikon {
namespace {

TEST(ReplaceStrings, WorksPairByPair) {
  test::forEachCase("template/replacements.txt", {"table", "text", "expected"},
                    [](const test::TextCase& c) {
                      EXPECT_EQ(replaceStrings(c["text"], c.list("table")), c["expected"]);
                    });
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
