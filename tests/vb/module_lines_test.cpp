#include "vb/module_lines.h"

#include <gtest/gtest.h>

#include "support/fake_module.h"

namespace tamrikon {
namespace {

using test::FakeModule;

TEST(ModuleLines, SplitsTheModuleIntoItsLines) {
  const FakeModule source({"", "a", "", ""});
  const ModuleLines module(source.ShareLines());
  EXPECT_EQ(module.count(), 4);
  EXPECT_EQ(module.line(2), "a");
  for (const int line : {-1, 0, 1, 4, 5}) EXPECT_EQ(module.line(line), "") << line;
}

TEST(ModuleLines, MapsLogicalLinesToStatementStarts) {
  const FakeModule source({"Option Explicit", "' a comment _", "goes on", "Dim a, _", "  b, _",
                           "  c", "Dim d_", "Dim e", "Dim f _"});
  const ModuleLines module(source.ShareLines());
  using Case = std::pair<int, int>;
  for (const auto& [given, expected] :
       {Case{0, 0}, Case{1, 1}, Case{2, 2}, Case{3, 4}, Case{4, 7}, Case{5, 8}, Case{6, 9}}) {
    EXPECT_EQ(module.toPhysicalLine(given), expected) << given;
  }
  for (const auto& [given, expected] :
       {Case{1, 1}, Case{3, 2}, Case{6, 4}, Case{4, 4}, Case{7, 7}, Case{8, 8}, Case{9, 9}}) {
    EXPECT_EQ(module.statementStartLine(given), expected) << given;
  }
}

TEST(ModuleLines, JoinsADeclarationWithOneBlankAtEachSeam) {
  const FakeModule source(
      {"  Sub S(a, _", "    b, _", "\tc)", "End Sub", "Dim under_", "Dim last, _"});
  const ModuleLines module(source.ShareLines());
  for (const int line : {1, 2, 3}) EXPECT_EQ(module.getDeclaration(line), "Sub S(a, b, \tc)");
  EXPECT_EQ(module.getDeclaration(5), "Dim under_");
  EXPECT_EQ(module.getDeclaration(6), "Dim last, ");  // nothing follows
}

TEST(ModuleLines, CutsADeclarationThatNoProgramHas) {
  const std::string name(20'000, 'n');
  const FakeModule source({"Dim " + name + ", _", name + ", _", name + ", _", name});
  EXPECT_EQ(ModuleLines(source.ShareLines()).getDeclaration(1),
            "Dim " + name + ", " + name + ", " + name + ",");
}

}  // namespace
}  // namespace tamrikon
