// Where a patch of several files can be applied.
#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace tamrikon {

/// `patch` takes no names that are absolute or lead out of the folder that it runs in: all files of
/// a patch are named from a folder that holds them.
class PatchFolder {
 public:
  /// The current folder, or the nearest above it that holds all of `paths`.
  PatchFolder(FileSystem& files, const std::vector<std::string>& paths);

  /// As it is reached from the current folder: ".", "..", "../.." and so on.
  const std::string& fromHere() const { return fromHere_; }

  /// One of the paths, from the folder on.
  std::string nameOf(const std::string& path) const;

 private:
  FileSystem& files_;
  std::string folder_;  // with its separator
  std::string fromHere_ = ".";
};

}  // namespace tamrikon
