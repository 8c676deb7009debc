#include "comments/proc_definition.h"

#include <gtest/gtest.h>

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
           Case{"Function F()", "Function/Variant"},
           Case{"Sub S()", "Sub/"},
           Case{"Sub S() ' As \"text", "Sub/"},
           Case{"Private Declare Function GetTick Lib \"kernel32\" (ByVal a As Long) As Long",
                "Function/Long/byval a:Long"},
           Case{"Property Get P(ByVal i%)", "Property Get/Variant/byval i:Integer"},
           Case{"Friend Property Let P(vData As Long)", "Property Let//vData:Long"},
           Case{"Property Set P(o As Collection)", "Property Set//o:Collection"},
           Case{"Public Event Changed(ByRef Cancel As Boolean)", "Event//Cancel:Boolean"},
           Case{"Public Event Closed", "Event/"},
           Case{"Public Count As Long", "Event/Long"},
           Case{"Sub S(a,b)", "Sub//a,b:Variant"},  // the blank is part of the separator
           Case{"Sub S(a, )", "Sub//a:Variant"},
           Case{"Sub S( a As Long, ByVal b As Long)", "Sub//a:Long/byval b:Long"},
           Case{"Sub S(a(1, 2) As Long)", "Sub//a(1:Variant/2):Long"},
           // One push a round: the list ends behind the g of this one.
           Case{"Sub S(a(f(1), g(2)), b) As X", "Sub/X/a(f(1):Variant/g(2):Variant"},
           Case{"Function F(a As Long", "Function/Long"},
           Case{"Function F(a() As Long) As Long()", "Function/Long()/a():Long"},
           Case{"Sub", "Event/"},
           Case{"", "Event/"},
           Case{")(", "Event/"},
       }) {
    ProcDefinition definition;
    definition.pLine = line;
    definition.parse();
    EXPECT_EQ(show(definition), expected) << line;
  }
}

TEST(ProcDefinition, ParsesOtherReturns) {
  struct Case {
    const char* line;
    void (ProcDefinition::*parse)();
    const char* expected;
  };
  const auto property = &ProcDefinition::parsePropGetReturn;
  const auto variable = &ProcDefinition::parseVariableReturn;
  const auto constant = &ProcDefinition::parseConstantReturn;
  for (const Case& c : {
           Case{"Property Get P() As Long ' it", property, "Long ' it"},
           Case{"Property Get P() ' don't", property, "Variant"},
           Case{"Public Name As String * 10 ' text", variable, "String * 10"},
           Case{"Dim c As New Collection", variable, "Collection"},
           Case{"Dim a%", variable, "Variant"},
           Case{"Const MAX_ITEMS As Long = 5", constant, "&5"},
           Case{"Public Const A = 1, B = 2", constant, "1, B = 2"},
           Case{"Const TITLE = \"x = 'y'\" ' z", constant, "\"x = 'y'\""},
           Case{"Const MAX% = 7", constant, "%7"},
           Case{"Const NAME As String = \"n\"", constant, "\"n\""},
           Case{"Dim MAX = 7", constant, ""},
       }) {
    ProcDefinition definition;
    definition.pLine = c.line;
    (definition.*c.parse)();
    EXPECT_EQ(definition.returns, c.expected) << c.line;
  }
}

TEST(Argument, TakesKeywordsInFrontOnly) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [line, expected] : {
           Case{"x As Long = 5", "x:Long=5"},
           Case{"Name As String * 10", "Name:String"},
           Case{"ParamArray rest()", "optional array rest():Variant"},
           Case{"ParamArray items$()", "optional array items$():Variant"},
           Case{"Optional   ByRef a!", "optional a:Single"},
           Case{"InByVal As Long", "InByVal:Long"},
           Case{"byval a#", "byval:Variant"},
           Case{"a& As Byte", "a:Byte"},
           Case{"Optional s = \"Optional As \"", "optional s:Variant=\"Optional As \""},
           Case{"", ":Variant"},
       }) {
    argument arg;
    arg.parse(line);
    EXPECT_EQ(show(arg), expected) << line;
  }
}

TEST(Argument, TakesTheWholeTypeOfAVariable) {
  argument arg;
  arg.parseVariable("x As Long = 5");
  EXPECT_EQ(show(arg), "x:Long = 5=5");
  arg.parseVariable("Name$");
  EXPECT_EQ(show(arg), "Name:String");
}

}  // namespace
}  // namespace tamrikon
