#include "template/macro_table.h"

#include <gtest/gtest.h>

#include "template/expansion.h"
#include "template/macro_fixture.h"

namespace tamrikon {
namespace {

using Messages = std::vector<std::string>;

TEST(EvaluateMacro, ExpandsCalls) {
  struct Case {
    const char* name;
    const char* text;
    const char* expected;
    Messages messages = {};
  };
  const Case cases[] = {
      {"empty", "", ""},
      {"nested, any case", "a $b$ c", "a b c"},
      {"undoubled in the outermost call only", "$PAIR$ 100$$", "5$ 100$"},
      {"value behind a pair", "$ENDS$", "b$"},
      {"value isn't scanned again", "$PAIR$B$", "5$B$", {wrongName("$")}},
      {"unknown stands as called", "$No$", "$No$"},
      {"list gives its name", "$list$", "list"},
      {"specials in capitals only", "$counter$", "$counter$"},
      {"markers alone are unknown", "$ELSEIF$$END-DOLIST$", "$ELSEIF$END-DOLIST$"},
      {"counting", "$COUNTER$$INC-COUNTER$$COUNTER$$DEC-COUNTER$$DEC-COUNTER$$COUNTER$", "120"},
      {"reset", "$INC-COUNTER$$RESET-COUNTER$$COUNTER$", "1"},
      {"ids run on", "$NEXT-ID$$NEXT-ID$", "12"},
      {"pair by chance", "$CHR$$CHR$", "$", {wrongName("$"), wrongName("$")}},
      {"lone $ ends its own text", "$LONE$, $B$", "x $ $B$, b", {wrongName("$")}},
      {"lone $ at a line end", "$|$B$", "$|$B$", {wrongName("$")}},
      {"wrong name, known", "$B c", "b c", {wrongName("$B")}},
      {"wrong name, unknown", "$X\ty", "$X$\ty", {wrongName("$X")}},
      {"name ends at the text's end", "$B", "b", {wrongName("$B")}},
      {"a blank in a name", "$MY NAME$ $B$", "$MY$ NAME$ $B$", {wrongName("$MY"), wrongName("$")}},
      {"warned at each expansion", "$WRONG$$WRONG$", "b b ", {wrongName("$B"), wrongName("$B")}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Macros macros;
    macros.set("B", "b");
    macros.set("PAIR", "5$$");
    macros.set("ENDS", "$B$$$");
    macros.set("CHR", "$");
    macros.set("LONE", "x $ $B$");
    macros.set("WRONG", "$B ");
    macros.setList("LIST", {"item|"});
    EXPECT_EQ(macros.expand(c.text), c.expected);
    EXPECT_EQ(macros.log.messages, c.messages);
  }
}

TEST(EvaluateMacro, AnswersByName) {
  Macros macros;
  macros.set("A", "$$ $B$");
  macros.set("B", "b$$");
  macros.set("", "empty name");
  macros.setList("L", {});
  EXPECT_EQ(macros.table.evaluateMacro("a"), "$ b$");
  EXPECT_EQ(macros.table.evaluateMacro("a", true), "$$ b$$");
  EXPECT_EQ(macros.table.getMacroBody("a"), "$$ $B$");
  EXPECT_EQ(macros.table.evaluateMacro(""), "empty name");
  EXPECT_EQ(macros.table.evaluateMacro("l"), "l");
  EXPECT_EQ(macros.table.getMacroBody("l"), "l");
  EXPECT_EQ(macros.table.evaluateMacro("x$"), "$x$$");
  EXPECT_EQ(macros.table.getMacroBody("x"), "$x$");
}

TEST(EvaluateMacro, TakesTheNewestValue) {
  Macros macros;
  macros.set("A", "$V$");
  macros.set("V", "text");
  EXPECT_EQ(macros.table.evaluateMacro("A"), "text");
  macros.setList("v", {});
  EXPECT_EQ(macros.table.evaluateMacro("A"), "V");
  macros.set("v", "$W$$W$");
  macros.set("w", "new");
  EXPECT_EQ(macros.table.evaluateMacro("A"), "newnew");
}

TEST(EvaluateMacro, ATextInWorkMayBeOverwritten) {
  Macros macros;
  macros.setList("PARAM-LIST", {"p|$DOLIST$ $SET01-LIST$|$LIST-ITEM-LABEL$;$END-DOLIST$ rest"});
  macros.setList("SET01-LIST", {"a|b|c|one", "a|b|c|two"});
  EXPECT_EQ(macros.expand("$DOLIST$ $PARAM-LIST$|$LIST-ITEM-LABEL$ $LIST-ITEM-LABEL$$END-DOLIST$"),
            "one;two; rest two");
}

TEST(EvaluateMacro, ReadOnlyNamesAreThoseOfTheSystem) {
  for (const char* name : {"TAMRIK-PATH", "LIST-ITEM", "MEMBER-USER5", "COUNTER", "SET03-LIST"}) {
    EXPECT_TRUE(MacroTable::isReadOnlyMacro(name)) << name;
  }
  for (const char* name : {"TEMPLATE-PATH", "MEMBER-FILE", "member-name", "NO", ""}) {
    EXPECT_FALSE(MacroTable::isReadOnlyMacro(name)) << name;
  }
}

TEST(MacroTable, IsSilentOnceCleared) {
  Macros macros;
  macros.set("A", "a");
  macros.table.clear();
  macros.set("A", "b");
  macros.setList("L", {"x|"});
  EXPECT_EQ(macros.table.evaluateMacro("A"), "$A$");
  EXPECT_EQ(macros.table.getMacroBody("L"), "$L$");
}

TEST(MacroTable, CountsFromOneInANewRun) {
  Macros macros;
  EXPECT_EQ(macros.expand("$NEXT-ID$$INC-COUNTER$"), "1");
  EXPECT_EQ(macros.expand("$NEXT-ID$$COUNTER$"), "22");
  macros.table.resetRunState();
  EXPECT_EQ(macros.expand("$NEXT-ID$$COUNTER$"), "11");
}

TEST(EvaluateMacro, EndsARecursion) {
  Macros macros;
  macros.set("A", "a$A$");
  EXPECT_EQ(macros.table.evaluateMacro("A"), std::string(200, 'a') + "$A$");

  macros.set("B", std::string(std::size_t{1} << 20, 'b') + "$B$$B$");
  const std::size_t size = macros.table.evaluateMacro("B").size();
  EXPECT_GT(size, std::size_t{255} << 20);
  EXPECT_LE(size, std::size_t{256} << 20);
}

TEST(Expansion, AnswersCallsBeyondTheBudgetAsUnknown) {
  struct Case {
    const char* name;
    std::string text;
    ExpansionBudget budget;
    const char* expected;
  };
  const std::string list = "$DOLIST$ $PARAM-LIST$|x$END-DOLIST$";
  const Case cases[] = {
      {"calls", "$B$$B$$B$", {3, 1000}, "bb$B$"},
      {"text", "$B$$B$$B$", {100, 11}, "bb$B$"},
      {"the first call too", "$B$", {100, 2}, "$A$"},
      {"small enough ones go on", "$B$$LONG$$B$", {100, 20}, "b$LONG$b"},
      {"items", list + "$B$", {3, 1000}, "xx$DOLIST$$B$"},
      {"list in a list",
       "$DOLIST$ $PARAM-LIST$|" + list + ".$END-DOLIST$",
       {6, 1000},
       "xxx.$DOLIST$.$DOLIST$"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Macros macros;
    ExpansionState state(macros.log);
    const auto set = [&](const char* name, const std::string& text) {
      state.slots.setText(*state.slots.intern(name).slot, lines(text));
    };
    set("A", c.text);
    set("B", "b");
    set("LONG", "0123456789");
    state.slots.setList(*state.slots.intern("PARAM-LIST").slot,
                        std::make_shared<MacroList>(3, "p\r"));
    EXPECT_EQ(Expansion(state, macros.table, c.budget).evaluate(*state.slots.find("A")),
              c.expected);
  }
}

}  // namespace
}  // namespace tamrikon
