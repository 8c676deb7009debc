#include "source/file_on_disk.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <utility>

namespace tamrikon {

std::string reasonOf(FileError error) {
  switch (error) {
    case FileError::fileNotFound: return "there is no such file";
    case FileError::pathNotFound: return "there is no such folder";
    case FileError::permissionDenied: return "no permission";
    case FileError::diskFull: return "no space on the device";
    case FileError::deviceIo: return "input/output error";
    case FileError::deviceUnavailable: return "no such device";
    case FileError::badFileName: return "the name is not valid";
    default: return "it is not a file that can be opened";
  }
}

FileOnDisk::FileOnDisk(std::string path, std::string_view bytes)
    : path_(std::move(path)), known_(stampOf(bytes)) {}

FileOnDisk::Stamp FileOnDisk::stampOf(std::string_view bytes) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  const auto take = [&](std::string_view part) {
    std::uint64_t word = 0;
    std::memcpy(&word, part.data(), part.size());
    hash = (hash ^ word) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 29;
  };
  const std::size_t size = bytes.size();
  // The size of a whole word is known to the compiler.
  for (; bytes.size() >= sizeof hash; bytes.remove_prefix(sizeof hash)) {
    take({bytes.data(), sizeof hash});
  }
  if (!bytes.empty()) take(bytes);
  return {size, hash};
}

bool FileOnDisk::isChanged(FileSystem& files) const {
  std::string bytes;
  return isGone(files) || files.read(path_, bytes) != FileError::none || stampOf(bytes) != known_;
}

std::optional<std::string> FileOnDisk::conflict(FileSystem& files) const {
  if (isGone(files)) return path_ + " has been removed by another program since it was read";
  std::string bytes;
  const FileError error = files.read(path_, bytes);
  if (error != FileError::none) return "cannot save " + path_ + ": " + reasonOf(error);
  if (stampOf(bytes) == known_) return std::nullopt;
  return path_ + " has been changed by another program since it was read";
}

std::optional<std::string> FileOnDisk::save(FileSystem& files, std::string_view bytes,
                                            OnConflict onConflict) {
  if (onConflict == OnConflict::fail) {
    std::optional<std::string> message = conflict(files);
    if (message) return message;
  }
  const FileError error = files.replaceAtomically(path_, bytes);
  if (error != FileError::none) return "cannot save " + path_ + ": " + reasonOf(error);
  known_ = stampOf(bytes);
  return std::nullopt;
}

std::optional<std::string> FileOnDisk::read(FileSystem& files, std::string& bytes) {
  const std::string start = "cannot read " + path_ + ": ";
  const FileError error = isGone(files) ? FileError::fileNotFound : files.read(path_, bytes);
  if (error != FileError::none) return start + reasonOf(error);
  if (bytes.size() > INT_MAX) return start + "it is too long";
  known_ = stampOf(bytes);
  return std::nullopt;
}

}  // namespace tamrikon
