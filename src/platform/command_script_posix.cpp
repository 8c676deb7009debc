#include "base/paths.h"
#include "base/text.h"
#include "platform/code_page.h"
#include "platform/command_script.h"

namespace tamrikon {
namespace {

/// `text` as one word that the shell takes as it is.
std::string quoted(std::string_view text) {
  return "'" + replaceAll(text, "'", "'\\''") + "'";
}

}  // namespace

std::string_view CommandScript::extension() {
  return "sh";
}

std::string CommandScript::interpreter(ProcessServices&) {
  return "/bin/sh";
}

std::vector<std::string> CommandScript::commandLine(const std::string& interpreter,
                                                    const std::string& path) {
  return {interpreter, nativePath(path)};
}

// File names are UTF-8 on these systems, whatever the project's own page is.
int CommandScript::codePage(int) {
  return kUtf8CodePage;
}

std::string CommandScript::header(int, const std::string& templates) {
  return "#!/bin/sh\nexport TEMPLATE_PATH=" + quoted(nativePath(templates));
}

std::string CommandScript::linesFor(std::string_view command, const std::string& logPath,
                                    bool withErrors) {
  const std::string line = quoted(command);
  const std::string target = " >> " + quoted(nativePath(logPath));
  // "command eval" keeps the script running behind a line that isn't shell syntax, and holds the
  // line apart from the redirection, so that a digit at its end stays an argument.
  return "\nprintf '\\036%s\\036\\n' " + line + target + "\ncommand eval " + line + target +
         (withErrors ? " 2>&1" : "");
}

}  // namespace tamrikon
