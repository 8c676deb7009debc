#include "host/conditional_compilation.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <tuple>
#include <vector>

#include "base/text.h"

namespace tamrikon {
namespace {

TEST(ConditionalExpression, FollowsTheLanguage) {
  ConditionalConstants constants = readConditionalConstants("TRACE = 1 : Level=&H10 :: Bad = 1 +");
  using Case = std::tuple<const char*, int>;
  for (const auto& [text, value] : {
           Case{"vba6 And TRUE", -1},
           Case{"trace + LEVEL", 17},
           Case{"&HFF& - &O17% - 1", 239},
           Case{"7 \\ 2 * 2", 1},    // "*" binds closer than "\"
           Case{"7 Mod 4 \\ 2", 1},  // and "\" closer than Mod
           Case{"-7 Mod 4", -3},
           Case{"3 > 2 = True", -1},
           Case{"1 <> 1 Or 2 >= 2 And 3 <= 2", 0},
           Case{"Not TRACE = 1", 0},
           Case{"1 = Not 0 And 5", 0},
           Case{"(1 + 2) * (3)", 9},
           Case{"1! + 2# + 4@ + 8% + &H10& + &O40%", 63},
           Case{"5 Xor 1 Eqv -1", 4},
           Case{"0 Imp 0", -1},
           Case{"2147483647 + 1 < 0", -1},
           Case{"(-2147483647 - 1) \\ -1 < 0", -1},
       }) {
    EXPECT_EQ(evaluateConditional(text, constants), value) << text;
  }
}

TEST(ConditionalExpression, WhatCannotBeReadIsZero) {
  const std::string deep(1000000, '(');
  const std::vector<std::string> texts = {"",
                                          "(1",
                                          "1)",
                                          "1 2",
                                          "\"a\" = \"a\"",
                                          "1 / 0 = 0",
                                          "1.5",
                                          "5000000000",
                                          "&H",
                                          "1 & 2",
                                          "1!2",
                                          "&H1!",
                                          deep + "1",
                                          std::string(1000000, '-') + "1"};
  for (const std::string& text : texts) {
    EXPECT_EQ(evaluateConditional(text, {}), 0) << text.substr(0, 40);
  }
}

TEST(ConditionalCompilation, ReadsTheBranchThatCounts) {
  using Case = std::array<const char*, 3>;
  for (const auto& [name, statements, expected] : {
           Case{"first of several", "#If Win32 Then|1|#ElseIf Win32 Then|2|#Else|3|#End If", "1"},
           Case{"inside a dead one", "#If 0 Then|#If 1 Then|1|#Else|2|#End If|3|#Else|4|#End If",
                "4"},
           Case{"constants", "#Const A = 2|#If A = 2 Then|1|#End If", "1"},
           Case{"dead constant", "#If 0 Then|#Const A = 1|#End If|#If A Then|1|#End If|2", "2"},
           Case{"strays", "#End If|#Else|1|#If 0 Then|2|#Else|3|#ElseIf 1|4|#Else|5", "13"},
       }) {
    SCOPED_TRACE(name);
    ConditionalCompilation conditional{ConditionalConstants()};
    std::string live;
    for (const std::string_view statement : split(statements, '|')) {
      if (!conditional.take(statement) && conditional.isLive()) live += statement;
    }
    EXPECT_EQ(live, expected);
  }
}

}  // namespace
}  // namespace tamrikon
