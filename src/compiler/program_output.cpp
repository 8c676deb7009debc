#include "compiler/program_output.h"

namespace tamrikon {

ProgramOutput readProgramOutput(std::string_view text, const std::vector<std::string>& commands,
                                std::string_view mark) {
  ProgramOutput result;
  const auto addPrinted = [&](std::string_view printed) {
    result.log += printed;
    result.printed += printed;
  };
  for (const std::string& command : commands) {
    const std::string line = std::string(mark).append(command).append(mark) + "\n";
    const std::size_t at = text.find(line);
    if (at == std::string_view::npos) break;
    addPrinted(text.substr(0, at));
    // What a program printed without a line end behind it.
    if (!result.printed.empty() && result.printed.back() != '\n') result.printed += '\n';
    result.log.append(command) += '\n';
    text.remove_prefix(at + line.size());
  }
  addPrinted(text);
  return result;
}

}  // namespace tamrikon
