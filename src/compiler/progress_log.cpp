#include "compiler/progress_log.h"

#include <utility>

namespace tamrikon {

void ProgressLog::logMessage(const std::string& text) {
  listener_.addMessage(text);
  lastLogMessage_ = text;
}

void ProgressLog::report(const Diagnostic& diagnostic) {
  std::string line = logLineOf(diagnostic);
  const bool isOfComment =
      diagnostic.about == Diagnostic::About::comment && diagnostic.inLog.empty();
  if (!isOfComment || line != lastLogMessage_) listener_.report(diagnostic);
  lastLogMessage_ = std::move(line);
}

void ProgressLog::addProgramOutput(const ProgramOutput& output) {
  listener_.addProgramOutput(output);
  lastLogMessage_ = output.log;
}

void ProgressLog::ShowProgress(std::string_view name, std::string_view detail) {
  status_ = "Compiling: ";
  status_.append(name);
  if (!detail.empty()) status_.append(".").append(detail);
  listener_.setStatusLine(status_);
}

}  // namespace tamrikon
