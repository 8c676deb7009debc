#include "compiler/running_command.h"

#include "platform/command_script.h"

namespace tamrikon {
namespace {

std::string marked(const std::string& command) {
  const std::string mark(CommandScript::mark());
  return mark + command + mark;
}

}  // namespace

const std::string& RunningCommand::now() {
  constexpr int kSeldom = 10;
  if (commands_.empty()) commands_.emplace_back();
  std::string text;
  if (asked_++ % kSeldom == 0 && files_.read(log_, text) == FileError::none) {
    for (; started_ < commands_.size(); ++started_) {
      const std::string named = marked(commands_[started_]);
      const std::size_t found = text.find(named, seen_);
      if (found == std::string::npos) break;
      seen_ = found + named.size();
    }
  }
  return commands_[started_ > 0 ? started_ - 1 : 0];
}

}  // namespace tamrikon
