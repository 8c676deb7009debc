// Reads the declaration of a procedure, event, variable or constant from Visual Basic source.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "vb/argument.h"

namespace tamrikon {

/// Serves one statement: set `pLine`, call one of the parse operations, read the fields. Nothing
/// is ever rejected; what can't be found leaves its field empty. Positions count from 1, in bytes.
class ProcDefinition {
 public:
  /// "Sub", "Function", "Property Get", "Property Set", "Property Let" or "Event".
  std::string pType = "Sub";

  /// Cuts the trailing comment from `pLine` and fills `pType`, `returns` and `args`.
  void parse();

  /// Sets `pType` to "Property Get" and fills `returns`, a trailing comment included.
  void parsePropGetReturn();

  /// Fills `returns` with the type of a variable declaration.
  void parseVariableReturn();

  std::string pLine;  // the statement, on one line
  std::string returns;
  std::vector<argument> args;  // in the order of the source

  /// Fills `returns` with the value of a constant, behind the suffix character of its type where
  /// this is a number type: "&5" for `Const MAX_ITEMS As Long = 5`.
  void parseConstantReturn();

  /// The arguments of `pLine`. `args` stays as it is.
  std::vector<argument> parseArgs();

  /// The position in `pLine` of the parenthesis that closes the argument list, or 0. It is found
  /// at the first call and kept.
  std::size_t endOfArgs();

  /// The position of the parenthesis that closes the one at `start`, string literals being
  /// skipped, or 0.
  static std::size_t findTerminatingParenth(std::string_view str, std::size_t start);

 private:
  std::string parseProcType() const;
  std::string parseProcReturn();

  std::optional<std::size_t> endOfArgs_;
};

}  // namespace tamrikon
