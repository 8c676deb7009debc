// Runs the programs that a template names, as one script in the output folder, and shows in the log
// what they printed.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "compiler/compile_context.h"
#include "compiler/running_command.h"

namespace tamrikon {

class ExternalPrograms {
 public:
  /// `context` must outlive this object.
  explicit ExternalPrograms(CompileContext& context)
      : context_(context), processes_(context.session.processes), log_(context.compiled.log()) {}

  /// `text` holds a command on each line, lines being divided by CR. Waits until all have run; all
  /// reporting goes to the log.
  void runExternalPrograms(const std::string& text);

  /// Whether the process started; it has ended then. Events get through meanwhile: a request to
  /// cancel leaves the process alone, CompileRun::endsPrograms ends it.
  bool runProcessAndWait(const std::string& application,
                         const std::vector<std::string>& commandLine);

  /// The ANSI code page of the calling thread's locale.
  int threadCodePage();

  /// 0 if the system gives none.
  int localeCodePage(int locale);

  /// `text` up to its first NUL character, or all of it.
  static std::string_view cutAtNul(std::string_view text);

 private:
  bool runScript(const std::string& text, const std::string& script, const std::string& log);
  void removeFiles(const std::string& script, const std::string& log);

  void showStatus();
  void reportError(std::string text);

  CompileContext& context_;
  ProcessServices& processes_;
  ProgressLog& log_;
  std::optional<RunningCommand> command_;  // where it is shown
};

}  // namespace tamrikon
