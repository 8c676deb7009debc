// What a compile reports: to the progress log and the status line of whoever follows it.
#pragma once

#include <string>
#include <string_view>

#include "base/message_log.h"
#include "compiler/compile_listener.h"

namespace tamrikon {

class ProgressLog final : public MessageLog {
 public:
  /// `listener` must outlive this object.
  explicit ProgressLog(CompileListener& listener) : listener_(listener) {}

  void logMessage(const std::string& text) override;
  void report(const Diagnostic& diagnostic) override;
  void addProgramOutput(const ProgramOutput& output);

  /// Shows "Compiling: " with `name` and, if it isn't empty, a dot and `detail`.
  void ShowProgress(std::string_view name, std::string_view detail);

 private:
  CompileListener& listener_;
  std::string lastLogMessage_;  // the last one, shown or not
  std::string status_;          // keeps its memory: each topic is shown
};

}  // namespace tamrikon
