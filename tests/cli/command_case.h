// A case of the command line as a text file: files are written, commands run one after another, and
// what they print and leave behind is compared. tests/data/commands/README.md tells the form.
#pragma once

#include <string>
#include <vector>

namespace tamrikon::test {

/// A line "=== VERB (OPTION) ARGUMENT" and the lines below it.
struct CommandStep {
  int line = 0;  // of the file, from 1
  std::string verb;
  std::string options;  // what stands between the parentheses
  std::string argument;
  std::string body;

  bool is(const std::string& option) const { return options.find(option) != std::string::npos; }
};

/// The steps of a file; a failure of the test if it has none.
std::vector<CommandStep> readCommandSteps(const std::string& path);

/// The words of a command: they are divided by blanks that don't stand within quotes.
std::vector<std::string> commandWords(const std::string& command);

/// Whether `text` is `expected`, in which "..." stands for any text of a line and, on a line of its
/// own, for any lines.
bool isAsExpected(std::string_view text, std::string_view expected);

}  // namespace tamrikon::test
