#include "compiler/external_programs.h"

#include <charconv>
#include <utility>

#include "base/paths.h"
#include "base/text.h"
#include "compiler/program_output.h"
#include "platform/command_script.h"

namespace tamrikon {
namespace {

constexpr int kEventPause = 50;  // milliseconds

/// Closes the handle, also where an event throws.
class RunningProgram {
 public:
  RunningProgram(Session& session, ProcessHandle& handle) : session_(session), handle_(handle) {
    session_.programsRun = true;
    session_.endsPrograms = false;
  }
  ~RunningProgram() {
    session_.programsRun = false;
    session_.processes.CloseHandle(handle_);
  }
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

 private:
  Session& session_;
  ProcessHandle& handle_;
};

std::string withoutLastLineEnd(const std::string& text) {
  return text.ends_with('\n') ? text.substr(0, text.size() - 1) : text;
}

}  // namespace

void ExternalPrograms::runExternalPrograms(const std::string& text) {
  const std::string base = joinPath(session_.settings.outputPath, "execAfter.");
  const std::string script = base + std::string(CommandScript::extension());
  const std::string log = base + "log";
  if (runScript(text, script, log)) {
    removeFiles(script, log);
  } else {
    session_.log.logMessage("ERROR: Cannot create and execute batch file.");
  }
}

bool ExternalPrograms::runScript(const std::string& text, const std::string& script,
                                 const std::string& log) {
  const int codePage = threadCodePage();
  std::string batch = CommandScript::header(
      codePage, std::string(withoutTrailingSeparator(session_.settings.templateFolder)));
  std::vector<std::string> commands;
  for (const std::string_view line : split(text, '\r')) {
    const std::string_view command = trim(line);
    if (command.empty()) continue;
    batch += CommandScript::linesFor(command, log, session_.showsPrograms);
    commands.emplace_back(command);
  }
  if (session_.showsPrograms) command_.emplace(session_.files.files(), log, commands);
  TextFiles files(session_.files.files(), session_.fileErrors);
  const CodePage* page = CodePage::find(CommandScript::codePage(codePage));
  files.setCodePage(page != nullptr ? *page : session_.files.codePage());
  if (files.writeTextFile(script, batch, false) != 0) return false;
  const std::string interpreter = CommandScript::interpreter(session_.processes);
  runProcessAndWait(interpreter, CommandScript::commandLine(interpreter, script));
  std::string output;
  // A process that didn't start shows here: there is no log then.
  if (files.readTextFile(log, true, output) != 0) return false;
  const ProgramOutput shown = readProgramOutput(output, commands, CommandScript::mark());
  if (session_.showsCommands) {
    session_.log.logMessage(shown.log);
  } else {
    session_.log.logMessageAs(shown.log, withoutLastLineEnd(shown.printed));
  }
  return true;
}

void ExternalPrograms::removeFiles(const std::string& script, const std::string& log) {
  constexpr int kRepeats = 10;
  constexpr int kPause = 100;  // milliseconds
  int repeats = 0;
  for (const std::string& path : {script, log}) {
    while (session_.files.files().remove(path) != FileError::none) {
      if (repeats++ == kRepeats) {
        session_.log.logMessage("WARNING: Cannot delete temporary batch (" + script + ") or log (" +
                                log + ") files.");
        return;
      }
      session_.processes.Sleep(kPause);
    }
  }
}

bool ExternalPrograms::runProcessAndWait(const std::string& application,
                                         const std::vector<std::string>& commandLine) {
  ProcessHandle handle;
  int error = 0;
  if (!session_.processes.CreateProcess(application, commandLine, handle, error) &&
      !session_.processes.CreateProcess("", commandLine, handle, error)) {
    session_.log.logMessage("ERROR: Cannot execute " + join(commandLine, " ") + ".");
    session_.log.logMessage("CreateProcess failed. Error: " + std::to_string(error));
    return false;
  }
  const RunningProgram running(session_, handle);
  while (!session_.processes.WaitForSingleObject(handle, kEventPause)) {
    showStatus();
    session_.toolkit.checkpoint();
    if (std::exchange(session_.endsPrograms, false)) session_.processes.TerminateProcess(handle);
  }
  return true;
}

void ExternalPrograms::showStatus() {
  if (!command_) return;
  const char* const doing = session_.cancelRequested
                                ? "Waiting for the end (Cancel again asks whether to end it) of: "
                                : "Running: ";
  session_.progressDlg.setStatusLine(doing + command_->now());
}

int ExternalPrograms::threadCodePage() {
  return localeCodePage(session_.processes.GetThreadLocale());
}

int ExternalPrograms::localeCodePage(int locale) {
  constexpr int kDefaultAnsiCodePage = 4100;
  const std::string buffer = session_.processes.GetLocaleInfoA(locale, kDefaultAnsiCodePage);
  const std::string_view digits = cutAtNul(buffer);
  int number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

std::string_view ExternalPrograms::cutAtNul(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

}  // namespace tamrikon
