// Who follows a compile: a dialog, a terminal, a test.
#pragma once

#include <cstddef>
#include <string>

#include "base/diagnostic.h"
#include "compiler/program_output.h"

namespace tamrikon {

struct CompileRun;
enum class CompileOutcome { finished, aborted, failed };

/// Whoever doesn't care about an event needn't override it.
class CompileListener {
 public:
  virtual ~CompileListener() = default;

  /// The compile of a project begins.
  virtual void compileBegins() {}

  /// Nothing more comes from that compile.
  virtual void compileEnded(CompileOutcome) {}

  /// A message of the log that reports no fault.
  virtual void addMessage(const std::string&) {}

  /// A fault, which the log shows as well unless it is about the project.
  virtual void report(const Diagnostic&) {}

  /// What the template's programs have printed, for the log as well.
  virtual void addProgramOutput(const ProgramOutput&) {}

  /// What is being done.
  virtual void setStatusLine(const std::string&) {}

  /// So many topics of so many have been written.
  virtual void setProgress(std::size_t done, std::size_t all) {
    static_cast<void>(done);
    static_cast<void>(all);
  }

  /// Called often: the place to process events, and to note in `run` what the user asks for.
  virtual void checkpoint(CompileRun&) {}
};

}  // namespace tamrikon
