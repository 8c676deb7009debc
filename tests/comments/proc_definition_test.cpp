#include "comments/proc_definition.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tamrikon {
namespace {

/// An argument as text: what its keywords set, name, type and default.
std::string show(const argument& arg) {
  std::string text;
  if (arg.aOptional) text += "optional ";
  if (arg.aByVal) text += "byval ";
  if (arg.pArray) text += "array ";
  text += arg.aName + ":" + arg.aType;
  if (!arg.aDefault.empty()) text += "=" + arg.aDefault;
  return text;
}

std::string show(const ProcDefinition& definition) {
  std::string text = definition.pType + "/" + definition.returns;
  for (const argument& arg : definition.args) text += "/" + show(arg);
  return text;
}

TEST(ProcDefinition, ParsesProcedures) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [line, expected] : {
           Case{"Public Function F(Optional ByVal a As Long = 5, b$) As String",
                "Function/String/optional byval a:Long=5/b:String"},
           Case{"Sub S(a(), b As String)", "Sub//a():Variant/b:String"},
           Case{"Sub S(Optional x As String = \")\")", "Sub//optional x:String=\")\""},
           Case{"Sub S() ' As \"text", "Sub/"},
           Case{"Friend Property Let P(vData As Long)", "Property Let//vData:Long"},
           Case{"Public Event Changed(ByRef Cancel As Boolean)", "Event//Cancel:Boolean"},
           Case{"Public Count As Long", "Event/Long"},
           Case{"Property Get P(ByVal i%)", "Property Get/Variant/byval i:Integer"},
           Case{"Sub S(a&, b@, c#, d!)", "Sub//a:Long/b:Currency/c:Double/d:Single"},
           Case{"Sub S(a,b)", "Sub//a,b:Variant"},  // the blank is part of the separator
           Case{"Sub S(a(1, 2) As Long)", "Sub//a(1:Variant/2):Long"},
           // One push a round: the list ends behind the g of this one.
           Case{"Sub S(a(f(1), g(2)), b) As X", "Sub/X/a(f(1):Variant/g(2):Variant"},
           Case{"Function F(a As Long", "Function/Long"},
           Case{"", "Event/"},
       }) {
    ProcDefinition definition;
    definition.pLine = line;
    definition.parse();
    EXPECT_EQ(show(definition), expected) << line;
  }
}

TEST(ProcDefinition, ParsesOtherReturns) {
  using Parse = void (ProcDefinition::*)();
  using Case = std::tuple<const char*, Parse, const char*>;
  const Parse property = &ProcDefinition::parsePropGetReturn;
  const Parse variable = &ProcDefinition::parseVariableReturn;
  const Parse constant = &ProcDefinition::parseConstantReturn;
  for (const auto& [line, parse, expected] : {
           Case{"Property Get P() As Long ' it", property, "Long ' it"},
           Case{"Property Get P() ' don't", property, "Variant"},
           Case{"Public Name As String * 10 ' text", variable, "String * 10"},
           Case{"Dim c As New Collection", variable, "Collection"},
           Case{"Const MAX_ITEMS As Long = 5", constant, "&5"},
           Case{"Public Const A = 1, B = 2", constant, "1, B = 2"},
           Case{"Const TITLE = \"x = 'y'\" ' z", constant, "\"x = 'y'\""},
       }) {
    ProcDefinition definition;
    definition.pLine = line;
    (definition.*parse)();
    EXPECT_EQ(definition.returns, expected) << line;
  }
}

TEST(Argument, TakesKeywordsInFrontOnly) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [line, expected] : {
           Case{"x As Long = 5", "x:Long=5"},
           Case{"ParamArray rest()", "optional array rest():Variant"},
           Case{"Optional   ByRef a!", "optional a:Single"},
           Case{"byval a#", "byval:Variant"},
           Case{"Optional s = \"Optional As \"", "optional s:Variant=\"Optional As \""},
           Case{"", ":Variant"},
       }) {
    argument arg;
    arg.parse(line);
    EXPECT_EQ(show(arg), expected) << line;
  }
}

}  // namespace
}  // namespace tamrikon
