// The script that runs a template's external programs, in the terms of the platform's command
// interpreter.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/process.h"

namespace tamrikon {

struct CommandScript {
  /// Extension of the script file, without its dot.
  static std::string_view extension();

  /// The command interpreter.
  static std::string interpreter(ProcessServices& services);

  /// The words of the command line that makes `interpreter` run the script at `path`.
  static std::vector<std::string> commandLine(const std::string& interpreter,
                                              const std::string& path);

  /// The code page that the interpreter reads the script in; `ansiPage` is the project's own.
  static int codePage(int ansiPage);

  /// The script's first lines, without a line end at the end. In the variable TEMPLATE_PATH the
  /// commands find the folder `templates`, whatever characters its name has.
  static std::string header(int ansiPage, const std::string& templates);

  /// The lines, each behind a line end, that add `command` itself, between two marks, to the log at
  /// `logPath` and then what it writes to its standard output, and if so wanted to its error
  /// output.
  static std::string_view mark() { return "\x1E"; }
  static std::string linesFor(std::string_view command, const std::string& logPath,
                              bool withErrors);
};

}  // namespace tamrikon
