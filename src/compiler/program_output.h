// What a template's programs have printed, as their script has put it down.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tamrikon {

struct ProgramOutput {
  std::string log;      // each command on a line, and behind it what it printed
  std::string printed;  // the same without the commands
};

/// `text` has a mark before and behind each of the `commands` that the script has come to, and a
/// line end behind that. Marks that the programs print stay in their output.
ProgramOutput readProgramOutput(std::string_view text, const std::vector<std::string>& commands,
                                std::string_view mark);

}  // namespace tamrikon
