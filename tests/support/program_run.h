// Runs the program in this process and keeps what it printed.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/command_line.h"

namespace tamrikon::test {

struct ProgramRun {
  explicit ProgramRun(const std::vector<std::string>& arguments, bool errIsTerminal = false)
      : ProgramRun(arguments, [errIsTerminal](Streams& s) { s.errIsTerminal = errIsTerminal; }) {}

  /// `setUp` may change what the streams are connected to.
  template <typename SetUp>
  ProgramRun(const std::vector<std::string>& arguments, SetUp setUp) {
    std::ostringstream outStream;
    std::ostringstream errStream;
    Streams streams(outStream, errStream);
    setUp(streams);
    status = runTamrikon(arguments, streams);
    out = outStream.str();
    err = errStream.str();
  }

  int status;
  std::string out;
  std::string err;
};

}  // namespace tamrikon::test
