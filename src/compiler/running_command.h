// Which of a script's commands runs.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace tamrikon {

/// Follows the log of the script, which names each command before it runs.
class RunningCommand {
 public:
  /// `files` must outlive this object.
  RunningCommand(FileSystem& files, std::string log, std::vector<std::string> commands)
      : files_(files), log_(std::move(log)), commands_(std::move(commands)) {}

  /// The last one that has been started; before that, the first one. Reads the log now and then
  /// only, however often it is asked.
  const std::string& now();

 private:
  FileSystem& files_;
  std::string log_;
  std::vector<std::string> commands_;
  std::size_t started_ = 0;  // so many of the commands
  std::size_t seen_ = 0;     // bytes of the log
  int asked_ = 0;
};

}  // namespace tamrikon
