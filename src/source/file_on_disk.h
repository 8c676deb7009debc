// A file that is held in memory and saved in place: what was known to be on disk, and whether it
// still is.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace tamrikon {

/// What to do about a file that is no longer what was read: another program has changed or removed
/// it meanwhile.
enum class OnConflict { fail, overwrite };

/// The error in words that follow "cannot read FILE: ".
std::string reasonOf(FileError error);

class FileOnDisk {
 public:
  /// `bytes` is what was read at the absolute `path`.
  FileOnDisk(std::string path, std::string_view bytes);

  const std::string& path() const { return path_; }

  /// Whether there is no file at the path.
  bool isGone(FileSystem& files) const { return !files.isFile(path_); }

  /// Whether the file isn't what was read or saved last. One that is gone or can't be read counts.
  bool isChanged(FileSystem& files) const;

  /// Replaces the file. A message that names it if that fails; the file is as it was then.
  std::optional<std::string> save(FileSystem& files, std::string_view bytes, OnConflict onConflict);

  /// Reads the file again. A message that names it if that fails.
  std::optional<std::string> read(FileSystem& files, std::string& bytes);

 private:
  /// Stands for bytes that needn't be kept to be compared.
  struct Stamp {
    std::size_t size = 0;
    std::uint64_t hash = 0;
    bool operator==(const Stamp&) const = default;
  };
  static Stamp stampOf(std::string_view bytes);

  /// Nothing if the file is what it was.
  std::optional<std::string> conflict(FileSystem& files) const;

  std::string path_;
  Stamp known_;
};

}  // namespace tamrikon
