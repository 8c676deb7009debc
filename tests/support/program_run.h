// Runs the program in this process and keeps what it printed.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/command_line.h"

namespace tamrikon::test {

struct ProgramRun {
  explicit ProgramRun(const std::vector<std::string>& arguments, bool errIsTerminal = false) {
    std::ostringstream outStream;
    std::ostringstream errStream;
    status = runTamrikon(arguments, Streams{outStream, errStream, errIsTerminal});
    out = outStream.str();
    err = errStream.str();
  }

  int status;
  std::string out;
  std::string err;
};

}  // namespace tamrikon::test
