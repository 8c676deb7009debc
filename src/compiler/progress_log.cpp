#include "compiler/progress_log.h"

namespace tamrikon {

void ProgressLog::logMessage(const std::string& text) {
  if (!text.starts_with("Warning: ") || text != lastLogMessage) ui_.addMessage(text);
  lastLogMessage = text;
}

void ProgressLog::ShowProgress(std::string_view name, std::string_view detail) {
  std::string line = "Compiling: ";
  line.append(name);
  if (!detail.empty()) line.append(".").append(detail);
  ui_.setStatusLine(line);
}

}  // namespace tamrikon
