#include "host/module_analysis.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "base/text.h"

namespace tamrikon {
namespace {

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
  using Case = std::array<const char*, 3>;
  for (const auto& [name, lines, members] : {
           Case{"procedures by scope",
                "Sub A()|End Sub|private static function B$(x)|end function|Friend Sub C()|End Sub|"
                "Global Sub D()|End Sub|Static Sub E()|End Sub",
                "A 12 1, B 11 3, C 13 5, D 12 7, E 12 9"},
           Case{"property joins, with the scope of its first procedure",
                "Friend Property Let P(v)|End Property|Sub x()|End Sub|Public Property Get p()|"
                "End Property",
                "P 23 1, x 12 3"},
           Case{"declares",
                "Declare Sub A Lib \"k\" ()|Private Declare PtrSafe Function B% Lib \"k\" (ByVal "
                "a&)|Friend Declare Sub C Lib \"k\" ()",
                "A 12 1, B 11 2"},
           Case{"variables",
                "Public a As Long, b(1, 2) As Byte, c$|Dim d|Global e As String * 5, f|"
                "Private WithEvents g As T, WithEvents h As T|Friend i|Static j",
                "a 32 1, b 32 1, c 32 1, d 31 2, e 32 3, f 32 3, g 31 4, h 31 4"},
           Case{"events and constants",
                "Event A(ByVal x)|Public Event B()|Private Event C()|Const d = 1, e = \"x, y\", f$ "
                "= (\"(\")|Global Const g = 1|Private Const h& = 2",
                "A 42 1, B 42 2, d 51 4, e 51 4, f 51 4, g 52 5, h 51 6"},
           Case{"blocks and others",
                "Option Explicit|Implements I|DefLng A-Z|Private Type T|Type As Long|Public x|"
                "End Type|Enum E|[_A] = 1|End Enum|Public y",
                "y 32 11"},
           Case{"several statements in a line",
                "Global Const a = 0:  Global Const b = \":\" ' : Public no|Private Type T: x As "
                "Long: End Type: Public c",
                "a 52 1, b 52 1, c 32 2"},
           Case{"comments", "' Public a|Rem Public b|rem|Remark = 1|Public c 'd, e|Dim f: Rem : g",
                "c 32 5, f 31 6"},
           Case{"continued", "Public a, _|  b, _|  c|Public d", "a 32 1, b 32 1, c 32 1, d 32 2"},
           Case{"names in brackets",
                "Public [a b], [c:d'e], [f\"g]|Sub [x/y](z)|End Sub|Public [] As T, [z",
                "a b 32 1, c_d'e 32 1, f_g 32 1, x_y 12 2, z 32 4"},
           Case{"names beyond ASCII", "Public Function ∑ab(α)|End Function|Public ñ As Long",
                "∑ab 12 1, ñ 32 3"},
           Case{"incomplete", "Public|Sub|Private Sub (|Const|Property X()|Dim ,, a|Public a b,",
                "a 31 6"},
       }) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Analysed(lines).members(), members);
  }
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
  using Case = std::array<const char*, 3>;
  for (const auto& [name, lines, procedures] : {
           Case{"blanks and comments above", "Option Explicit ' x||' b _|c||Sub B()|End Sub||",
                "1, B 0 2-6-7"},
           Case{"continued declaration line", "Dim a, _|  b ' c _|d|Sub E()|End Sub",
                "2, E 0 3-4-5"},
           Case{"several",
                "Sub A( _|x)|End Sub ' a|' b|Property Get B()|End Function|Property Let B(v)|10 "
                "End Property|Property Set b(v)|If x Then End: End Property",
                "0, A 0 1-1-3, B 3 4-5-6, B 1 7-7-8, B 2 9-9-10"},
           Case{"open to the end", "Sub A()|Sub B()|End|x", "0, A 0 1-1-4"},
           Case{"in one line", "Sub A(): End Sub: Sub B(): x: End Sub|Sub C()|End Sub",
                "0, A 0 1-1-1, B 0 2-1-1, C 0 2-2-3"},
       }) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Analysed(lines).procedures(), procedures);
  }
}

}  // namespace
}  // namespace tamrikon
