#include "template/macro_table.h"

#include <gtest/gtest.h>

#include <tuple>

#include "template/expansion.h"
#include "template/macro_fixture.h"

namespace tamrikon {
namespace {

using Messages = std::vector<std::string>;

TEST(EvaluateMacro, AnswersByName) {
  Macros macros;
  macros.set("A", "$$ $B$");
  macros.set("B", "b$$");
  macros.setList("L", {});
  EXPECT_EQ(macros.table.evaluateMacro("a"), "$ b$");
  EXPECT_EQ(macros.table.evaluateMacro("a", true), "$$ b$$");
  EXPECT_EQ(macros.table.getMacroBody("a"), "$$ $B$");
  EXPECT_EQ(macros.table.evaluateMacro("l"), "l");
  EXPECT_EQ(macros.table.evaluateMacro("x$"), "$x$$");
  EXPECT_EQ(macros.table.getMacroBody("x"), "$x$");
}

TEST(EvaluateMacro, ATextInWorkMayBeOverwritten) {
  Macros macros;
  macros.setList("PARAM-LIST", {"p|$DOLIST$ $SET01-LIST$|$LIST-ITEM-LABEL$;$END-DOLIST$ rest"});
  macros.setList("SET01-LIST", {"a|b|c|one", "a|b|c|two"});
  EXPECT_EQ(macros.expand("$DOLIST$ $PARAM-LIST$|$LIST-ITEM-LABEL$ $LIST-ITEM-LABEL$$END-DOLIST$"),
            "one;two; rest two");
}

TEST(MacroTable, LinesComeBackAsTheyWere) {
  for (const auto& [lines, body, expanded] : {
           std::tuple("", "", ""),
           {"a", "a", "a"},
           {"a\r\rb\r", "a$EOL$$EOL$b$EOL$", "a//b/"},
           {"Left$(s)$\r$B$", "Left$$(s)$$$EOL$$$B$$", "Left$(s)$/$B$"},
       }) {
    Macros macros;
    macros.set("B", "b");
    macros.set("eol", "/");
    macros.set("SOURCE", "$DOLIST$ $L$\r$B$$END-DOLIST$ $lone");
    macros.expand("$SOURCE$");
    macros.log.messages.clear();
    macros.table.setMacroLines("source", lines);
    EXPECT_EQ(macros.table.getMacroBody("SOURCE"), body);
    EXPECT_EQ(macros.expand("$SOURCE$"), expanded);
    macros.set("SOURCE", body);
    EXPECT_EQ(macros.expand("$SOURCE$"), expanded);
    EXPECT_EQ(macros.log.messages, Messages());
  }
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
  EXPECT_THROW(macros.table.evaluateMacro("B"), BudgetUsedUp);
  macros.set("B", "b");  // which nothing expands any more
  EXPECT_EQ(macros.table.evaluateMacro("B"), "b");
}

TEST(Expansion, EndsWhereItsBudgetIsUsedUp) {
  using Case = std::tuple<const char*, ExpansionBudget, const char*>;
  for (const auto& [text, budget, place] :
       {Case{"$B$$B$$B$", {4, 12}, ""}, Case{"$B$$B$$B$", {3, 12}, "$B$"},
        Case{"$B$$B$$B$", {4, 11}, "$B$"}, Case{"$B$", {4, 2}, "$A$"},
        Case{"$DOLIST$ $L$\r$END-DOLIST$", {2, 1000}, "$DOLIST$"}}) {
    SCOPED_TRACE(text);
    Macros macros;
    ExpansionState state(macros.log);
    state.slots.setText(*state.slots.intern("A").slot, text);
    state.slots.setText(*state.slots.intern("B").slot, "b");
    state.slots.setList(*state.slots.intern("L").slot,
                        std::make_shared<MacroList>(MacroList{{"x\r", "y\r"}}));
    std::string message;
    try {
      Expansion(state, budget).evaluate(*state.slots.find("A"));
    } catch (const BudgetUsedUp& usedUp) {
      message = usedUp.what();
    }
    EXPECT_EQ(message, *place == '\0' ? ""
                                      : "The expansion of A has no end: its bounds of calls and "
                                        "text are used up at " +
                                            std::string(place));
  }
}

}  // namespace
}  // namespace tamrikon
