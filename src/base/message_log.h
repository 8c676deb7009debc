// The one way to report in a compile, as the lower folders see it.
#pragma once

#include <string>

#include "base/diagnostic.h"

namespace tamrikon {

class MessageLog {
 public:
  virtual ~MessageLog() = default;

  /// Adds `text` (one message, perhaps of several lines), which reports no fault.
  virtual void logMessage(const std::string& text) = 0;

  /// A warning of a comment that equals the message before it isn't shown again.
  virtual void report(const Diagnostic& diagnostic) = 0;
};

/// For those who don't care.
class NoLog final : public MessageLog {
 public:
  void logMessage(const std::string&) override {}
  void report(const Diagnostic&) override {}
};

}  // namespace tamrikon
