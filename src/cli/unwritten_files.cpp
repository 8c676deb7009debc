#include "cli/unwritten_files.h"

#include <utility>

namespace tamrikon {

FileError UnwrittenFiles::replaceAtomically(const std::string& path, std::string_view bytes) {
  std::string before;
  const FileError error = files_.read(path, before);
  if (error != FileError::none) return error;
  replacements_.push_back({path, std::move(before), std::string(bytes)});
  return FileError::none;
}

}  // namespace tamrikon
