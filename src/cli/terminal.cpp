#include "cli/terminal.h"

#include <algorithm>

#include "base/case_folding.h"
#include "base/text.h"
#include "base/utf8.h"

namespace tamrikon {
namespace {

bool isWarning(const std::string& text) {
  return startsWithIgnoringCase(text, "warning: ") ||
         startsWithIgnoringCase(text, "warning (config file): ") ||
         startsWithIgnoringCase(text, "error: ") ||
         startsWithIgnoringCase(text, "error (config file): ");
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

void Terminal::addMessage(const std::string& text) {
  const bool warns = isWarning(text);
  hadWarnings_ = hadWarnings_ || warns;
  const std::string lines = withLineFeeds(text) + '\n';
  if (log_ != nullptr) *log_ << lines;
  if (quiet_ && !warns) return;
  clearStatus();
  streams_.out << lines << std::flush;
}

void Terminal::complain(const std::string& text) {
  clearStatus();
  streams_.err << text << '\n' << std::flush;
}

MessageAnswer Terminal::messageBox(const std::string& title, const std::string& text,
                                   MessageButtons) {
  complain(title + ": " + withLineFeeds(text));
  return MessageAnswer::cancel;
}

void Terminal::setStatusLine(const std::string& text) {
  if (!streams_.errIsTerminal) return;
  status_ = text;
  showStatus();
}

void Terminal::setProgress(std::size_t done, std::size_t all) {
  done_ = done;
  all_ = all;
}

void Terminal::showStatus() {
  // A line for each of thousands of pages would cost more than the pages.
  constexpr auto kPause = std::chrono::milliseconds(40);
  constexpr std::size_t kWidth = 79;
  const auto now = std::chrono::steady_clock::now();
  if (statusIsShown_ && now - lastShown_ < kPause) return;
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
