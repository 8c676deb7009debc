// What a compile reports: to the progress log and the status line of its dialog.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/message_log.h"

namespace tamrikon {

class ProgressDlg;

class ProgressLog final : public MessageLog {
 public:
  /// `dialog` must outlive this object.
  explicit ProgressLog(ProgressDlg& dialog) : dialog_(dialog) {}

  void logMessage(const std::string& text) override { logMessageAs(text, text); }
  void logMessageAs(const std::string& text, const std::string& wording) override;

  /// Hears of each message that goes into the log, and its wording.
  std::function<void(const std::string& text, const std::string& wording)> onMessage;

  /// Shows "Compiling: " with `name` and, if it isn't empty, a dot and `detail`.
  void ShowProgress(std::string_view name, std::string_view detail);

  /// The last text given to logMessage, shown or not.
  std::string lastLogMessage;

 private:
  ProgressDlg& dialog_;
  std::string status_;  // keeps its memory: each topic is shown
};

}  // namespace tamrikon
