#include <gtest/gtest.h>

#include "support/text_cases.h"
#include "template/expansion_budget.h"
#include "template/macro_fixture.h"

namespace tamrikon {
namespace {

using test::TextCase;

TEST(Expansion, FollowsTheMacrosOfATemplate) {
  const auto check = [](const TextCase& c) {
    Macros macros;
    macros.set("FULL", "f");
    macros.set("VOID", "");
    macros.set("TO-VOID", "$VOID$");
    macros.set("B", "b");
    macros.set("PAIR", "5$$");
    macros.set("CHR", "$");
    macros.set("LONE", "x $ $B$");
    macros.setList("NO-ITEMS", {});
    macros.setList("LIST", {"item|"});
    macros.setList("PARAM-LIST", {"a|first", "b|second|line|"});
    macros.setList("SET01-LIST", {"p|c|v|label", "p2|c2|v2|"});
    EXPECT_EQ(macros.expand(c["text"]), c["expected"]);
    EXPECT_EQ(macros.log.messages, withPrefix(kConfig, c.list("warnings")));
  };
  test::forEachCase("template/expansions.txt", {"text", "expected", "warnings"}, check);
}

TEST(DoList, ResolvesAndSortsLinks) {
  const auto check = [](const TextCase& c) {
    Macros macros;
    macros.links.add("Home", 7);
    macros.links.add("Home.Run", 100);
    macros.links.add("Home.Save", 12, true);
    macros.links.add("Home.Old", 13);
    macros.links.aliases["Home.Old"] = "Home.Save";
    const std::string items = c["items"];
    const auto parts = split(items, ';');
    macros.setList("SEE-LINK-LIST", {parts.begin(), parts.end()});
    EXPECT_EQ(
        macros.expand("$DOLIST$ $SEE-LINK-LIST$|$LIST-ITEM-LABEL$:$LIST-ITEM$:"
                      "$LIST-ITEM-LOCATION$:$LIST-ITEM-FILE$:$LIST-ITEM-HELPID$|$END-DOLIST$"),
        c["expected"]);
    EXPECT_EQ(macros.log.messages, withPrefix("Warning: ", c.list("warnings")));
  };
  test::forEachCase("template/link-lists.txt", {"items", "expected", "warnings"}, check);
}

TEST(DoList, PublishesTheListsOfAModule) {
  for (const std::string list :
       {"CONT-FORMS-LINK-LIST", "CONT-OBJECTS-LINK-LIST", "SEE-LINK-LIST"}) {
    Macros macros;
    macros.links.add("Home", 7);
    macros.links.add("Home.Run", 8);
    macros.setList(list, {"Home|"});
    EXPECT_EQ(macros.expand("$DOLIST$ $" + list +
                            "$|$LIST-ITEM$$DOLIST$ $METHODS-LINK-LIST$|"
                            "$LIST-ITEM-LABEL$$END-DOLIST$$END-DOLIST$"),
              list.starts_with("CONT") ? "Run" : "")
        << list;
  }
}

TEST(DoList, LosesAllByAFailingItemButItsEffects) {
  Macros macros;
  macros.setList("PARAM-LIST", {"a|", "b"});
  macros.setList("SET02-LIST", {"p|c|v|l", "p2|c2"});
  EXPECT_EQ(macros.expand("<$DOLIST$ $PARAM-LIST$|x$NEXT-ID$$END-DOLIST$>$NEXT-ID$"), "<>2");
  EXPECT_EQ(macros.expand("<$DOLIST$ $SET02-LIST$|x$END-DOLIST$>$LIST-ITEM-PARAM$"), "<>p2");

  macros.setList("PARAM-LIST", std::vector<std::string>(32767, "a|"));
  EXPECT_EQ(macros.expand("$DOLIST$ $PARAM-LIST$|x$END-DOLIST$").size(), 32767U);
  macros.setList("PARAM-LIST", std::vector<std::string>(32768, "a|"));
  EXPECT_EQ(macros.expand("$DOLIST$ $PARAM-LIST$|$INC-COUNTER$$END-DOLIST$$COUNTER$"), "32768");
}

TEST(ListMacros, NestDeeply) {
  Macros macros;
  macros.set("FULL", "f");
  macros.setList("PARAM-LIST", {"a|"});
  const auto nested = [&](const std::string& open, const std::string& close, int depth) {
    std::string before;
    std::string behind;
    for (int i = 0; i < depth; ++i) before += open, behind += close;
    return macros.expand(before + "x" + behind);
  };
  EXPECT_EQ(nested("$DOLIST$ $PARAM-LIST$|", "$END-DOLIST$", 1000), "x");
  EXPECT_THROW(nested("$DOLIST$ $PARAM-LIST$|", "$END-DOLIST$", 100'000), BudgetUsedUp);
  EXPECT_EQ(nested("$IFNOTEMPTY$ $FULL$|", "$ELSEIF$$END-IFNOTEMPTY$", 100'000), "x");
}

}  // namespace
}  // namespace tamrikon
