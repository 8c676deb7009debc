// Talks to somebody at a terminal, or to nobody, in a pipe: messages are printed as they come, a
// message box becomes a question, and what a compile is doing becomes a status line.
#pragma once

#include <chrono>
#include <ostream>
#include <string>

#include "cli/command_line.h"
#include "compiler/compile_listener.h"
#include "dialogs/file_error_dialog.h"
#include "toolkit/prompter.h"

namespace tamrikon {

class Terminal final : public Prompter, public CompileListener {
 public:
  /// How much of the log is printed.
  enum class Detail { faults, messages, commands };

  /// The streams must outlive this object. `commands` are those of the template's programs.
  explicit Terminal(const Streams& streams, Detail detail = Detail::messages);
  ~Terminal() override;
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  /// Asks here what to do about a file error.
  FileErrorDialog fileErrors{*this};

  /// Adds a stream, which must outlive this object, that gets all messages of the log.
  void setLog(std::ostream& log) { log_ = &log; }

  /// Whether there was a warning or an error, in the log or beside it. Lines of a program's output
  /// that begin as one count.
  bool hadWarnings() const { return hadWarnings_; }

  /// Whether Ctrl+C has ended a template's programs: then the whole run is to end.
  bool hasEndedPrograms() const { return hasEndedPrograms_; }

  /// A line on the output.
  void print(const std::string& text);

  /// A line on the error stream.
  void complain(const std::string& text);

  /// Without somebody to ask, Cancel is taken, or No where there is no Cancel.
  MessageAnswer messageBox(const MessageBox& box) override;
  bool openDocument(const std::string& path, const MessageBox& failure) override;

  void compileBegins() override;
  void compileEnded(CompileOutcome outcome) override;

  // While a compile runs, all of these go to the log as well, but for faults of the project.
  void addMessage(const std::string& text) override;
  void addProgramOutput(const ProgramOutput& output) override;

  /// Faults of the project go to the error stream, those that the log has to the output.
  void report(const Diagnostic& diagnostic) override;
  void setStatusLine(const std::string& text) override;

  /// The next status line shows it.
  void setProgress(std::size_t done, std::size_t all) override;

  /// Ctrl+C stops the compile. While a template's programs run, the first one waits for them and
  /// the second one ends them.
  void checkpoint(CompileRun& run) override;

 private:
  MessageAnswer ask(const MessageBox& box);
  void addToLog(const std::string& text);
  void showStatus(const std::string& text);
  void clearStatus();

  Streams streams_;
  Detail detail_;
  std::ostream* log_ = nullptr;
  bool hadWarnings_ = false;
  bool compiles_ = false;
  int interrupts_ = 0;  // of the compile of this project
  bool hasEndedPrograms_ = false;
  bool statusIsShown_ = false;
  std::size_t done_ = 0;
  std::size_t all_ = 0;
  std::chrono::steady_clock::time_point lastShown_;
};

}  // namespace tamrikon
