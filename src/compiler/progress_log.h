// The progress log and the status line of a compile.
#pragma once

#include <string>
#include <string_view>

#include "base/message_log.h"
#include "compiler/user_interface.h"

namespace tamrikon {

class ProgressLog final : public MessageLog {
 public:
  /// `ui` must outlive this object.
  explicit ProgressLog(UserInterface& ui) : ui_(ui) {}

  void logMessage(const std::string& text) override;

  /// Shows "Compiling: " with `name` and, if it isn't empty, a dot and `detail`.
  void ShowProgress(std::string_view name, std::string_view detail);

  /// The last text given to logMessage, shown or not.
  std::string lastLogMessage;

 private:
  UserInterface& ui_;
};

}  // namespace tamrikon
