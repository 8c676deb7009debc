#include "vb/conditional_compilation.h"

#include <gtest/gtest.h>

#include <string>

#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::TextCase;

TEST(ConditionalExpression, FollowsTheLanguage) {
  const ConditionalConstants constants =
      readConditionalConstants("TRACE = 1 : Level=&H10 :: Bad = 1 +");
  test::forEachCase("vb/conditional-expressions.txt", {"text", "value"}, [&](const TextCase& c) {
    EXPECT_EQ(evaluateConditional(c["text"], constants), c.number("value"));
  });
}

TEST(ConditionalExpression, WhatIsEmptyOrTooDeepIsZero) {
  for (const std::string& text :
       {std::string(), std::string(1000000, '(') + "1", std::string(1000000, '-') + "1"}) {
    EXPECT_EQ(evaluateConditional(text, {}), 0) << text.substr(0, 40);
  }
}

TEST(ConditionalCompilation, ReadsTheBranchThatCounts) {
  const auto check = [](const TextCase& c) {
    ConditionalCompilation conditional{ConditionalConstants()};
    std::string live;
    for (const std::string& statement : c.list("statements")) {
      if (!conditional.take(statement) && conditional.isLive()) live += statement;
    }
    EXPECT_EQ(live, c["live"]);
  };
  test::forEachCase("vb/conditional-compilation.txt", {"statements", "live"}, check);
}

}  // namespace
}  // namespace tamrikon
