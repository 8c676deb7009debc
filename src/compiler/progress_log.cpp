#include "compiler/progress_log.h"

#include "compiler/progress_dlg.h"

namespace tamrikon {

void ProgressLog::logMessage(const std::string& text) {
  if (!text.starts_with("Warning: ") || text != lastLogMessage) dialog_.addMessage(text);
  lastLogMessage = text;
}

void ProgressLog::ShowProgress(std::string_view name, std::string_view detail) {
  std::string line = "Compiling: ";
  line.append(name);
  if (!detail.empty()) line.append(".").append(detail);
  dialog_.setStatusLine(line);
}

}  // namespace tamrikon
