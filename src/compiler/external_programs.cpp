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
  RunningProgram(CompileRun& run, ProcessServices& processes, ProcessHandle& handle)
      : run_(run), processes_(processes), handle_(handle) {
    run_.programsRun = true;
    run_.endsPrograms = false;
  }
  ~RunningProgram() {
    run_.programsRun = false;
    processes_.CloseHandle(handle_);
  }
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

 private:
  CompileRun& run_;
  ProcessServices& processes_;
  ProcessHandle& handle_;
};

}  // namespace

void ExternalPrograms::runExternalPrograms(const std::string& text) {
  const std::string base = joinPath(context_.session.settings.outputPath, "execAfter.");
  const std::string script = base + std::string(CommandScript::extension());
  const std::string log = base + "log";
  if (runScript(text, script, log)) {
    removeFiles(script, log);
  } else {
    reportError("Cannot create and execute batch file.");
  }
}

bool ExternalPrograms::runScript(const std::string& text, const std::string& script,
                                 const std::string& log) {
  const int codePage = threadCodePage();
  std::string batch = CommandScript::header(
      codePage, std::string(withoutTrailingSeparator(context_.session.settings.templateFolder)));
  std::vector<std::string> commands;
  for (const std::string_view line : split(text, '\r')) {
    const std::string_view command = trim(line);
    if (command.empty()) continue;
    batch += CommandScript::linesFor(command, log, context_.run.showsPrograms);
    commands.emplace_back(command);
  }
  if (context_.run.showsPrograms) command_.emplace(context_.files.files(), log, commands);
  TextFiles files(context_.files.files(), context_.errorReporter());
  const CodePage* page = CodePage::find(CommandScript::codePage(codePage));
  files.setCodePage(page != nullptr ? *page : context_.files.codePage());
  if (files.writeTextFile(script, batch, false) != 0) return false;
  const std::string interpreter = CommandScript::interpreter(processes_);
  runProcessAndWait(interpreter, CommandScript::commandLine(interpreter, script));
  std::string output;
  // A process that didn't start shows here: there is no log then.
  if (files.readTextFile(log, true, output) != 0) return false;
  log_.addProgramOutput(readProgramOutput(output, commands, CommandScript::mark()));
  return true;
}

void ExternalPrograms::removeFiles(const std::string& script, const std::string& log) {
  constexpr int kRepeats = 10;
  constexpr int kPause = 100;  // milliseconds
  int repeats = 0;
  for (const std::string& path : {script, log}) {
    while (context_.files.files().remove(path) != FileError::none) {
      if (repeats++ == kRepeats) {
        log_.report({Diagnostic::About::compile, Severity::warning, "temporary-files",
                     "Cannot delete temporary batch (" + script + ") or log (" + log + ") files."});
        return;
      }
      processes_.Sleep(kPause);
    }
  }
}

bool ExternalPrograms::runProcessAndWait(const std::string& application,
                                         const std::vector<std::string>& commandLine) {
  ProcessHandle handle;
  int error = 0;
  if (!processes_.CreateProcess(application, commandLine, handle, error) &&
      !processes_.CreateProcess("", commandLine, handle, error)) {
    reportError("Cannot execute " + join(commandLine, " ") + ".");
    log_.logMessage("CreateProcess failed. Error: " + std::to_string(error));
    return false;
  }
  const RunningProgram running(context_.run, processes_, handle);
  while (!processes_.WaitForSingleObject(handle, kEventPause)) {
    showStatus();
    context_.listener.checkpoint(context_.run);
    if (std::exchange(context_.run.endsPrograms, false)) processes_.TerminateProcess(handle);
  }
  return true;
}

void ExternalPrograms::reportError(std::string text) {
  log_.report({Diagnostic::About::compile, Severity::error, "programs", std::move(text)});
}

void ExternalPrograms::showStatus() {
  if (!command_) return;
  const char* const doing = context_.run.cancelRequested
                                ? "Waiting for the end (Cancel again asks whether to end it) of: "
                                : "Running: ";
  context_.listener.setStatusLine(doing + command_->now());
}

int ExternalPrograms::threadCodePage() {
  return localeCodePage(processes_.GetThreadLocale());
}

int ExternalPrograms::localeCodePage(int locale) {
  constexpr int kDefaultAnsiCodePage = 4100;
  const std::string buffer = processes_.GetLocaleInfoA(locale, kDefaultAnsiCodePage);
  const std::string_view digits = cutAtNul(buffer);
  int number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

std::string_view ExternalPrograms::cutAtNul(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

}  // namespace tamrikon
