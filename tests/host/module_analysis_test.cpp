#include "host/module_analysis.h"

#include <gtest/gtest.h>

#include <string>

#include "base/text.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::TextCase;

/// The analysis of lines divided by "|", with what the tests ask of it.
class Analysed {
 public:
  explicit Analysed(std::string text, const char* constants = "")
      : text_(std::move(text)), analysis_(split(text_, '|'), readConditionalConstants(constants)) {}

  /// Each member as "name type scope line", type and scope by their numbers.
  std::string members() const {
    std::string result;
    for (const MemberRecord& member : analysis_.members()) {
      if (!result.empty()) result += ", ";
      result += member.name + ' ' + std::to_string(static_cast<int>(member.type)) +
                std::to_string(static_cast<int>(member.scope)) + ' ' +
                std::to_string(member.logicalLine);
    }
    return result;
  }

  /// The count of declaration lines, then each procedure as "name kind start-body-end".
  std::string procedures() const {
    std::string result = std::to_string(analysis_.declarationLines());
    for (const ProcedureRecord& procedure : analysis_.procedures()) {
      result += ", " + analysis_.members()[procedure.member].name + ' ' +
                std::to_string(static_cast<int>(procedure.kind)) + ' ' +
                std::to_string(procedure.startLine) + '-' + std::to_string(procedure.bodyLine) +
                '-' + std::to_string(procedure.endLine);
    }
    return result;
  }

 private:
  std::string text_;
  ModuleAnalysis analysis_;
};

TEST(ModuleAnalysis, FindsMembers) {
  test::forEachCase("host/members.txt", {"lines", "members"}, [](const TextCase& c) {
    EXPECT_EQ(Analysed(c["lines"]).members(), c["members"]);
  });
}

TEST(ModuleAnalysis, FollowsConditionalCompilation) {
  const std::string lines =
      "#If VBA7 Then|Public Sub Paint(ByVal h As LongPtr)|#Else|Public Sub Paint(ByVal h As Long)|"
      "#End If|x = 1|#If LOGGED Then|End Sub|Sub Other()|#End If|End Sub|#If False Then|"
      "Private a, b|#End If|Public c";
  EXPECT_EQ(Analysed(lines).members(), "Paint 12 4, c 32 15");
  EXPECT_EQ(Analysed(lines).procedures(), "3, Paint 0 4-4-11");
  EXPECT_EQ(Analysed(lines, "logged = 1").members(), "Paint 12 4, Other 12 9, c 32 15");
}

TEST(ModuleAnalysis, PlacesProcedures) {
  test::forEachCase("host/procedures.txt", {"lines", "procedures"}, [](const TextCase& c) {
    EXPECT_EQ(Analysed(c["lines"]).procedures(), c["procedures"]);
  });
}

}  // namespace
}  // namespace tamrikon
