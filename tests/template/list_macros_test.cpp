#include <gtest/gtest.h>

#include "template/expansion_budget.h"
#include "template/macro_fixture.h"

namespace tamrikon {
namespace {

using Messages = std::vector<std::string>;

const std::string kIfSyntax = kConfig + "Wrong syntax of IFNOTEMPTY macro. ";
const std::string kIfLine = kIfSyntax + "Unfinished line.";
const std::string kIfEnd = kIfSyntax + "$END-IFNOTEMPTY tag missing.";
const std::string kListSyntax = kConfig + "Wrong syntax of DOLIST macro. ";
const std::string kListLine = kListSyntax + "Unfinished line.";
const std::string kListEnd = kListSyntax + "$END-DOLIST tag missing.";

/// The message about the argument of an IFNOTEMPTY.
std::string ifArgument(const std::string& argument) {
  return kConfig + "Wrong argument \"" + argument + "\" of IFNOTEMPTY macro.";
}

struct Case {
  const char* name;
  std::string text;  // "|" is a CR, as in the result
  std::string expected;
  Messages messages = {};
};

template <std::size_t N>
void run(const Case (&cases)[N]) {
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Macros macros;
    macros.set("FULL", "f");
    macros.set("VOID", "");
    macros.set("TO-VOID", "$VOID$");
    macros.setList("NO-ITEMS", {});
    macros.setList("PARAM-LIST", {"a|first", "b|second|line|"});
    macros.setList("SET01-LIST", {"p|c|v|label", "p2|c2|v2|"});
    EXPECT_EQ(macros.expand(c.text), c.expected);
    EXPECT_EQ(macros.log.messages, c.messages);
  }
}

TEST(IfNotEmpty, ChoosesABranch) {
  const auto choice = [](const std::string& name) {
    return "$IFNOTEMPTY$ $" + name + "$|yes$ELSEIF$no$END-IFNOTEMPTY$";
  };
  run({
      {"text", choice("FULL"), "yes"},
      {"value isn't expanded", choice("TO-VOID"), "yes"},
      {"list", choice("PARAM-LIST"), "yes"},
      {"empty text", choice("VOID"), "no"},
      {"a special isn't in the table", choice("COUNTER"), "no"},
      {"no else", "a $IFNOTEMPTY$ $VOID$|yes|$END-IFNOTEMPTY$ b", "a  b"},
      {"line ends", "a|$IFNOTEMPTY$ $FULL$|yes|$ELSEIF$|no|$END-IFNOTEMPTY$|b", "a|yes||b"},
      {"other words on the tag's line", "$IFNOTEMPTY$ if $$ $FULL$ isn't $ empty|y$END-IFNOTEMPTY$",
       "y"},
      {"nested",
       "$IFNOTEMPTY$ $VOID$|1$IFNOTEMPTY$ $FULL$|2$ELSEIF$3$END-IFNOTEMPTY$$ELSEIF$"
       "4$IFNOTEMPTY$ $VOID$|5$ELSEIF$6$END-IFNOTEMPTY$7$END-IFNOTEMPTY$8",
       "4678"},
      {"only the chosen branch acts",
       "$IFNOTEMPTY$ $VOID$|$INC-COUNTER$$ELSEIF$$COUNTER$$END-IFNOTEMPTY$", "1"},
      {"pairs survive", "$IFNOTEMPTY$ $FULL$|$$$FULL$$$$END-IFNOTEMPTY$", "$f$"},
  });
}

TEST(IfNotEmpty, ReportsWrongSyntax) {
  run({
      {"no line end", "a$IFNOTEMPTY$ $FULL$ b $FULL$", "a", {kIfLine}},
      {"no argument", "a$IFNOTEMPTY$ b|c $FULL$", "ac f", {ifArgument("")}},
      {"wrong argument", "$IFNOTEMPTY$ $DOLIST$ x|$FULL$", "f", {ifArgument("DOLIST")}},
      {"no end marker", "a$IFNOTEMPTY$ $FULL$|$FULL$$END-DOLIST$", "a", {kIfEnd}},
      {"end marker beyond the branch",
       "$IFNOTEMPTY$ $FULL$|a $DOLIST$ $PARAM-LIST$|$X $END-IFNOTEMPTY$|b$END-DOLIST$",
       "a |b$END-DOLIST$",
       {wrongName("$X"), wrongName("$X"), kListEnd}},
  });
}

TEST(DoList, WalksParameterAndSetLists) {
  run({
      {"parameters keep their order and lines",
       "$DOLIST$ $PARAM-LIST$|$LIST-ITEM-NUMBER$$LIST-ITEM-FIRST$/$LIST-ITEM-LAST$ "
       "$LIST-ITEM-PARAM$=$LIST-ITEM-LABEL$;$END-DOLIST$.",
       "11/ a=first;2/1 b=second|line|;."},
      {"set table",
       "$DOLIST$ $SET01-LIST$|$LIST-ITEM-PARAM$ $LIST-ITEM-CONSTANT$ $LIST-ITEM-VALUE$ "
       "[$LIST-ITEM-LABEL$]|$END-DOLIST$",
       "p c v [label]|p2 c2 v2 []|"},
      {"no list", "a$DOLIST$ $FULL$|x$END-DOLIST$$DOLIST$ $X$|x$END-DOLIST$b", "ab"},
      {"messages", "$DOLIST$", "", {kListLine}},
      {"argument",
       "$DOLIST$ $IFNOTEMPTY$|x",
       "x",
       {kConfig + "Wrong argument \"IFNOTEMPTY\" of DOLIST macro."}},
      {"end", "$DOLIST$ $PARAM-LIST$|x", "", {kListEnd}},
  });
}

TEST(DoList, ResolvesAndSortsLinks) {
  struct Case {
    const char* name;
    std::vector<std::string> items;
    const char* expected;
    Messages messages = {};
  };
  const std::string deadX = "Warning: dead x";
  const std::string deadY = "Warning: dead y";
  const Case cases[] = {
      {"labels without regard to case",
       {"Home.Run|b", "Home|A", "Home.Save|a"},
       "a:Save:Home::12|A::Home::7|b:Run:Home::100|"},
      {"then help ids as text", {"Home.Save|a", "Home.Run|A"}, "A:Run:Home::100|a:Save:Home::12|"},
      {"letters beyond ASCII",
       {"Home|\xC3\x89ta", "Home|\xC3\xA9t", "Home|z"},
       "z::Home::7|\xC3\xA9t::Home::7|\xC3\x89ta::Home::7|"},
      {"made labels",
       {"Home.Save|", "Home|", "~Run|"},
       "Home::Home::7|Run:Run:Home::100|Save (Home):Save:Home::12|"},
      {"an alias' topic serves", {"Home.Old|"}, "Save (Home):Save:Home::12|"},
      {"files",
       {"\"b.txt|", "\"c|a label|of lines"},
       "a label|of lines:c:External file:c:0|b.txt:b.txt:External file:b.txt:0|"},
      // Sorting asks twice for each link, the walk once more.
      {"dead links", {"x|", "y|l"}, "::::0|l::::0|", {deadX, deadX, deadY, deadY, deadX, deadY}},
      {"an item without CR empties all", {"x|", "Home.Run", "y|"}, "", {deadX, deadX}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Macros macros;
    macros.links.add("Home", 7);
    macros.links.add("Home.Run", 100);
    macros.links.add("Home.Save", 12, true);
    macros.links.add("Home.Old", 13);
    macros.links.aliases["Home.Old"] = "Home.Save";
    macros.setList("SEE-LINK-LIST", c.items);
    EXPECT_EQ(
        macros.expand("$DOLIST$ $SEE-LINK-LIST$|$LIST-ITEM-LABEL$:$LIST-ITEM$:"
                      "$LIST-ITEM-LOCATION$:$LIST-ITEM-FILE$:$LIST-ITEM-HELPID$|$END-DOLIST$"),
        c.expected);
    EXPECT_EQ(macros.log.messages, c.messages);
  }
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
