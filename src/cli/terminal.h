// The progress log, the status line and the message boxes on a terminal or in a pipe.
#pragma once

#include <chrono>
#include <memory>
#include <ostream>
#include <string>

#include "cli/command_line.h"
#include "compiler/user_interface.h"

namespace tamrikon {

class Terminal final : public UserInterface {
 public:
  /// The streams must outlive this object. With `quiet`, only warnings and errors of the log are
  /// printed.
  Terminal(const Streams& streams, bool quiet) : streams_(streams), quiet_(quiet) {}
  ~Terminal() override { clearStatus(); }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  /// Adds a stream, which must outlive this object, that gets all messages of the log.
  void setLog(std::ostream& log) { log_ = &log; }

  bool hadWarnings() const { return hadWarnings_; }

  void addMessage(const std::string& text) override;
  void setStatusLine(const std::string& text) override;
  void setProgress(std::size_t done, std::size_t all) override;

  /// Nobody is asked: Cancel is taken.
  MessageAnswer messageBox(const std::string& title, const std::string& text,
                           MessageButtons buttons) override;
  void pumpEvents() override {}

  /// A line on the error stream.
  void complain(const std::string& text);

 private:
  void showStatus();
  void clearStatus();

  Streams streams_;
  bool quiet_;
  std::ostream* log_ = nullptr;
  bool hadWarnings_ = false;
  std::string status_;
  bool statusIsShown_ = false;
  std::size_t done_ = 0;
  std::size_t all_ = 0;
  std::chrono::steady_clock::time_point lastShown_;
};

}  // namespace tamrikon
