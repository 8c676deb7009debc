// Finds the files that project files name, whose paths were written on a system where letter case
// doesn't count.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/case_folding.h"
#include "platform/file_system.h"

namespace tamrikon {

/// Remembers the folders that it has read, so it is for one opening of a project.
class PathLookup {
 public:
  explicit PathLookup(FileSystem& files) : files_(files) {}

  /// The path at which `path` is tried first: native, in `folder` unless it is absolute, and as a
  /// person would write it, without "." and "..".
  static std::string tried(std::string_view folder, std::string_view path);

  /// The absolute path of the file that `path` names, seen from `folder`; empty if there is none.
  /// An exact name goes before one in another case, and an absolute path that isn't there is tried
  /// by its last name in `folder`.
  std::string find(std::string_view folder, std::string_view path);

 private:
  using Names = std::unordered_map<std::string, std::vector<std::string>, CaseInsensitiveHash,
                                   CaseInsensitiveEqual>;

  std::string findAt(const std::string& path);
  std::string findIgnoringCase(std::string_view root, std::string_view rest, int depth);
  const Names& namesIn(const std::string& folder);

  FileSystem& files_;
  std::unordered_map<std::string, Names> folders_;
  int detours_ = 0;  // names taken though another one fitted as well
};

}  // namespace tamrikon
