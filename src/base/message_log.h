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

  /// The same for a message that has a better wording where people read messages one by one, as on
  /// a terminal; an empty one has nothing to say there. The log holds `text`.
  virtual void logMessageAs(const std::string& text, const std::string& wording) {
    static_cast<void>(wording);
    logMessage(text);
  }
};

}  // namespace tamrikon
