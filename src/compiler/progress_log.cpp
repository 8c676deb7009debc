#include "compiler/progress_log.h"

namespace tamrikon {

void ProgressLog::logMessageAs(const std::string& text, const std::string& wording) {
  if (!text.starts_with("Warning: ") || text != lastLogMessage_) {
    listener_.addMessage(text, wording);
  }
  lastLogMessage_ = text;
}

void ProgressLog::ShowProgress(std::string_view name, std::string_view detail) {
  status_ = "Compiling: ";
  status_.append(name);
  if (!detail.empty()) status_.append(".").append(detail);
  listener_.setStatusLine(status_);
}

}  // namespace tamrikon
