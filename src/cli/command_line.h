// The program `tamrikon`, apart from its main(): it can run inside another program, with streams of
// that program's choice.
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace tamrikon {

struct Streams {
  Streams(std::ostream& output, std::ostream& errors) : out(output), err(errors) {}

  std::ostream& out;
  std::ostream& err;
  bool errIsTerminal = false;  // whether a status line makes sense
  bool outIsTerminal = false;  // whether people read what goes to `out`, and no other program

  /// Waits for the line that somebody answers to what is asked on `err`; nothing if that was ended
  /// by Ctrl+C or there is no more. Empty if there is nobody to ask.
  std::function<std::optional<std::string>()> readLine;

  /// Whether Ctrl+C was pressed since this was asked last.
  std::function<bool()> isInterrupted = [] { return false; };
};

enum ExitStatus { kDone = 0, kFailed = 1, kWrongUsage = 2, kHadWarnings = 3 };

/// `words`: the arguments without the program's name. The exit status is one of those above.
int runTamrikon(const std::vector<std::string>& words, const Streams& streams);

}  // namespace tamrikon
