// One argument of a procedure, or one variable of a declaration, read from Visual Basic source.
#pragma once

#include <string>
#include <string_view>

namespace tamrikon {

class argument {
 public:
  std::string aDefault;           // as written: string literals keep their quotes
  std::string aType = "Variant";  // name of the type
  std::string aName;              // with array parentheses, without type-suffix character
  bool pArray = false;            // ParamArray
  bool aByVal = false;            // ByVal; neither ByRef nor no keyword sets it
  bool aOptional = false;         // Optional or ParamArray

  /// Reads `line`, which has the form `[Optional] [ByVal|ByRef] [ParamArray] name [As type]
  /// [= default]`, into the fields. Never fails: what isn't there leaves its field at the initial
  /// value. Keywords are told apart by case.
  void parse(std::string_view line);

  /// The same, with a type that runs to the end of the line, as in `Name As String * 10`.
  void parseVariable(std::string_view line);

 private:
  void readAllButType(std::string_view line);
};

}  // namespace tamrikon
