#include <filesystem>

#include "platform/program_path.h"

namespace tamrikon {

std::string programFolder() {
  std::error_code failure;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", failure);
  return failure ? std::string() : program.parent_path().string();
}

}  // namespace tamrikon
