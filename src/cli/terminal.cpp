#include "cli/terminal.h"

#include <algorithm>

#include "base/case_folding.h"
#include "base/text.h"
#include "base/utf8.h"
#include "cli/questions.h"
#include "platform/open_document.h"
#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/text_controls.h"
#include "toolkit/value_controls.h"

namespace tamrikon {
namespace {

bool isWarning(std::string_view line) {
  return startsWithIgnoringCase(line, "warning: ") ||
         startsWithIgnoringCase(line, "warning (config file): ") ||
         startsWithIgnoringCase(line, "error: ") ||
         startsWithIgnoringCase(line, "error (config file): ");
}

/// A message that begins as a warning or an error, and otherwise those of its lines that do: what a
/// template's programs print comes as one message. Empty if there is none.
std::string warningsOf(const std::string& message) {
  if (isWarning(message)) return message;
  std::string warnings;
  for (const std::string_view line : split(message, '\n')) {
    if (isWarning(line)) warnings.append(warnings.empty() ? "" : "\n").append(line);
  }
  return warnings;
}

std::string withLineFeeds(const std::string& text) {
  std::string lines = replaceAll(text, "\r\n", "\n");
  std::replace(lines.begin(), lines.end(), '\r', '\n');
  return lines;
}

/// The button of the dialog that has `role` and can be pressed, or null.
CommandButton* buttonOf(const Dialog& dialog, ButtonRole role) {
  for (Control* control : dialog.controls()) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button != nullptr && button->role() == role && button->isEnabled()) return button;
  }
  return nullptr;
}

/// The first `width` characters.
std::string_view shortened(std::string_view text, std::size_t width) {
  std::size_t offset = 0;
  for (std::size_t n = 0; n < width && offset < text.size(); ++n) readCodePoint(text, offset);
  return text.substr(0, offset);
}

}  // namespace

class Terminal::StatusPeer final : public ControlPeer {
 public:
  StatusPeer(Terminal& terminal, const StatusBar& bar) : terminal_(terminal), bar_(bar) {}
  void changed() override {
    terminal_.status_ = bar_.panel(1);
    if (terminal_.status_.empty()) return terminal_.clearStatus();
    terminal_.showStatus();
  }

 private:
  Terminal& terminal_;
  const StatusBar& bar_;
};

/// Changes what the next status line says; the status itself follows at once.
class Terminal::ProgressPeer final : public ControlPeer {
 public:
  ProgressPeer(Terminal& terminal, const ProgressIndicator& indicator)
      : terminal_(terminal), indicator_(indicator) {}
  void changed() override {
    terminal_.done_ = indicator_.done();
    terminal_.all_ = indicator_.all();
  }

 private:
  Terminal& terminal_;
  const ProgressIndicator& indicator_;
};

Terminal::Terminal(const Streams& streams, bool quiet) : streams_(streams), quiet_(quiet) {}

Terminal::~Terminal() {
  clearStatus();
}

void Terminal::runModal(Dialog& dialog) {
  std::vector<std::pair<Control*, std::unique_ptr<ControlPeer>>> peers;
  for (Control* control : dialog.controls()) {
    std::unique_ptr<ControlPeer> peer;
    if (const auto* bar = dynamic_cast<StatusBar*>(control); bar != nullptr) {
      peer = std::make_unique<StatusPeer>(*this, *bar);
    } else if (const auto* shown = dynamic_cast<ProgressIndicator*>(control); shown != nullptr) {
      peer = std::make_unique<ProgressPeer>(*this, *shown);
    } else {
      continue;
    }
    control->attach(peer.get());
    peers.emplace_back(control, std::move(peer));
  }
  Dialog* const owner = std::exchange(dialog_, &dialog);
  interrupts_ = 0;
  done_ = all_ = 0;
  dialog.onActivate();
  if (CommandButton* button = buttonOf(dialog, ButtonRole::default_);
      dialog.isShown() && button != nullptr) {
    button->userClicked();
  }
  dialog.close();
  dialog_ = owner;
  for (const auto& [control, peer] : peers) control->attach(nullptr);
}

void Terminal::checkpoint() {
  if (!streams_.isInterrupted() || dialog_ == nullptr) return;
  CommandButton* button = buttonOf(*dialog_, ButtonRole::cancel);
  if (button == nullptr) return;
  if (++interrupts_ == 1) button->userClicked();
  if (interrupted) interrupted(interrupts_);
}

bool Terminal::openDocument(const std::string& path, const MessageBox& failure) {
  if (tamrikon::openDocument(path)) return true;
  messageBox(failure);
  return false;
}

void Terminal::beep() {
  if (streams_.errIsTerminal) streams_.err << '\a' << std::flush;
}

void Terminal::showMessage(const std::string& text, const std::string& wording) {
  if (dialog_ == nullptr) return;
  if (log_ != nullptr) *log_ << withLineFeeds(text) << '\n';
  if (wording.empty() && !text.empty()) return;
  const std::string lines = withLineFeeds(wording);
  const std::string warnings = warningsOf(lines);
  hadWarnings_ = hadWarnings_ || !warnings.empty();
  if (!quiet_) {
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
  hadWarnings_ = hadWarnings_ || !warningsOf(text).empty();
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

void Terminal::showStatus() {
  if (!streams_.errIsTerminal) return;
  // A line for each of thousands of pages would cost more than the pages.
  constexpr auto kPause = std::chrono::milliseconds(40);
  constexpr std::size_t kWidth = 79;
  const auto now = std::chrono::steady_clock::now();
  // What ends so is a step of its own, which may take its time.
  if (statusIsShown_ && !status_.ends_with("...") && now - lastShown_ < kPause) return;
  lastShown_ = now;
  std::string line;
  if (all_ != 0) line = "[" + std::to_string(done_) + "/" + std::to_string(all_) + "] ";
  line += status_;
  streams_.err << "\r\x1b[K" << shortened(line, kWidth) << std::flush;
  statusIsShown_ = true;
}

void Terminal::clearStatus() {
  if (statusIsShown_) streams_.err << "\r\x1b[K" << std::flush;
  statusIsShown_ = false;
}

}  // namespace tamrikon
