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

  /// The script's first line, without a line end.
  static std::string header(int ansiPage);

  /// The lines, each behind a line end, that add `command` itself to the log at `logPath` and then
  /// what it writes to its standard output.
  static std::string linesFor(std::string_view command, const std::string& logPath);
};

}  // namespace tamrikon
