// The one way to report in a compile, as the lower folders see it.
#pragma once

#include <string>

namespace tamrikon {

class MessageLog {
 public:
  virtual ~MessageLog() = default;

  /// Adds `text` (one message, perhaps of several lines) to the progress log. A text that begins
  /// with "Warning: " and equals the message before it isn't shown again.
  virtual void logMessage(const std::string& text) = 0;
};

}  // namespace tamrikon
