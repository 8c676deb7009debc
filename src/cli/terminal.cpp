#include "cli/terminal.h"

#include <algorithm>

#include "base/case_folding.h"
#include "base/text.h"
#include "base/utf8.h"
#include "cli/questions.h"
#include "compiler/compile_run.h"
#include "platform/open_document.h"

namespace tamrikon {
namespace {

/// As programs, and our own log, begin them.
bool isWarning(std::string_view line) {
  return startsWithIgnoringCase(line, "warning: ") ||
         startsWithIgnoringCase(line, "warning (config file): ") ||
         startsWithIgnoringCase(line, "error: ") ||
         startsWithIgnoringCase(line, "error (config file): ");
}

/// What programs have printed, if it begins as a warning or an error, and otherwise those of its
/// lines that do. Empty if there is none.
std::string warningsOf(const std::string& output) {
  if (isWarning(output)) return output;
  std::string warnings;
  for (const std::string_view line : split(output, '\n')) {
    if (isWarning(line)) warnings.append(warnings.empty() ? "" : "\n").append(line);
  }
  return warnings;
}

std::string withoutLastLineEnd(const std::string& text) {
  return text.ends_with('\n') ? text.substr(0, text.size() - 1) : text;
}

std::string withLineFeeds(const std::string& text) {
  std::string lines = replaceAll(text, "\r\n", "\n");
  std::replace(lines.begin(), lines.end(), '\r', '\n');
  return lines;
}

/// The first `width` characters.
std::string_view shortened(std::string_view text, std::size_t width) {
  std::size_t offset = 0;
  for (std::size_t n = 0; n < width && offset < text.size(); ++n) readCodePoint(text, offset);
  return text.substr(0, offset);
}

}  // namespace

Terminal::Terminal(const Streams& streams, Detail detail) : streams_(streams), detail_(detail) {}

Terminal::~Terminal() {
  clearStatus();
}

void Terminal::compileBegins() {
  compiles_ = true;
  interrupts_ = 0;
  setProgress(0, 0);
  setStatusLine("Analysing the project...");
}

void Terminal::compileEnded(CompileOutcome outcome) {
  compiles_ = false;
  clearStatus();
  if (outcome == CompileOutcome::failed && streams_.errIsTerminal)
    streams_.err << '\a' << std::flush;
}

void Terminal::checkpoint(CompileRun& run) {
  if (!streams_.isInterrupted()) return;
  ++interrupts_;
  run.cancelRequested = true;
  if (!run.programsRun) return;
  if (interrupts_ > 1) {
    run.endsPrograms = hasEndedPrograms_ = true;
  } else {
    complain("tamrikon: waiting for the template's programs to end; Ctrl+C ends them and tamrikon");
  }
}

bool Terminal::openDocument(const std::string& path, const MessageBox& failure) {
  if (tamrikon::openDocument(path)) return true;
  messageBox(failure);
  return false;
}

void Terminal::addToLog(const std::string& text) {
  if (log_ != nullptr) *log_ << withLineFeeds(text) << '\n';
}

void Terminal::addMessage(const std::string& text) {
  if (!compiles_) return;
  addToLog(text);
  if (detail_ != Detail::faults) print(withLineFeeds(text));
}

void Terminal::report(const Diagnostic& diagnostic) {
  if (diagnostic.about == Diagnostic::About::project) {
    hadWarnings_ = hadWarnings_ || diagnostic.severity != Severity::note;
    return complain(lineOf(diagnostic));
  }
  if (!compiles_) return;
  hadWarnings_ = true;
  addToLog(logLineOf(diagnostic));
  print(withLineFeeds(lineOf(diagnostic)));
}

void Terminal::addProgramOutput(const ProgramOutput& output) {
  if (!compiles_) return;
  addToLog(output.log);
  const bool showsCommands = detail_ == Detail::commands;
  const std::string text = showsCommands ? output.log : withoutLastLineEnd(output.printed);
  if (text.empty()) return;
  const std::string lines = withLineFeeds(text);
  const std::string warnings = warningsOf(lines);
  hadWarnings_ = hadWarnings_ || !warnings.empty();
  if (detail_ != Detail::faults) {
    print(lines);
  } else if (!warnings.empty()) {
    print(warnings);
  }
}

void Terminal::print(const std::string& text) {
  clearStatus();
  streams_.out << text << '\n' << std::flush;
}

void Terminal::complain(const std::string& text) {
  clearStatus();
  streams_.err << text << '\n' << std::flush;
}

MessageAnswer Terminal::messageBox(const MessageBox& box) {
  complain(box.title + ": " + withLineFeeds(box.text));
  return streams_.readLine ? ask(box) : answerOfNobody(box.buttons);
}

MessageAnswer Terminal::ask(const MessageBox& box) {
  if (box.buttons == MessageButtons::ok) return MessageAnswer::ok;
  for (;;) {
    streams_.err << promptFor(box.buttons) << std::flush;
    const std::optional<std::string> line = streams_.readLine();
    if (!line) break;
    if (const auto answer = readAnswer(*line, box.buttons)) return *answer;
  }
  streams_.isInterrupted();  // Ctrl+C has had its effect
  streams_.err << '\n' << std::flush;
  return answerOfNobody(box.buttons);
}

void Terminal::setStatusLine(const std::string& text) {
  text.empty() ? clearStatus() : showStatus(text);
}

void Terminal::setProgress(std::size_t done, std::size_t all) {
  done_ = done;
  all_ = all;
}

void Terminal::showStatus(const std::string& text) {
  if (!streams_.errIsTerminal) return;
  // A line for each of thousands of pages would cost more than the pages.
  constexpr auto kPause = std::chrono::milliseconds(40);
  constexpr std::size_t kWidth = 79;
  const auto now = std::chrono::steady_clock::now();
  // What ends so is a step of its own, which may take its time.
  if (statusIsShown_ && !text.ends_with("...") && now - lastShown_ < kPause) return;
  lastShown_ = now;
  std::string line;
  if (all_ != 0) line = "[" + std::to_string(done_) + "/" + std::to_string(all_) + "] ";
  line += text;
  streams_.err << "\r\x1b[K" << shortened(line, kWidth) << std::flush;
  statusIsShown_ = true;
}

void Terminal::clearStatus() {
  if (statusIsShown_) streams_.err << "\r\x1b[K" << std::flush;
  statusIsShown_ = false;
}

}  // namespace tamrikon
