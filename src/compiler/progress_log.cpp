#include "compiler/progress_log.h"

#include "compiler/progress_dlg.h"

namespace tamrikon {

void ProgressLog::logMessageAs(const std::string& text, const std::string& wording) {
  if (!text.starts_with("Warning: ") || text != lastLogMessage) {
    dialog_.addMessage(text);
    if (onMessage) onMessage(text, wording);
  }
  lastLogMessage = text;
}

void ProgressLog::ShowProgress(std::string_view name, std::string_view detail) {
  status_ = "Compiling: ";
  status_.append(name);
  if (!detail.empty()) status_.append(".").append(detail);
  dialog_.setStatusLine(status_);
}

}  // namespace tamrikon
