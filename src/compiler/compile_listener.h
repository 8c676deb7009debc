// Who follows a compile: a dialog, a terminal, a test.
#pragma once

#include <cstddef>
#include <string>

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

  /// A message of the log. `wording` says the same where people read messages one by one, as on a
  /// terminal; it is empty if there is nothing to say there.
  virtual void addMessage(const std::string& text, const std::string& wording) {
    static_cast<void>(text);
    static_cast<void>(wording);
  }

  /// A warning beside the log, as one line without its end.
  virtual void warn(const std::string&) {}

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
