// Files as whole byte sequences. Paths may have either separator.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_error.h"

namespace tamrikon {

class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// Reads the whole file. On failure `bytes` is empty. Files above 256 MB fail, and pipes and
  /// devices, which may never end.
  virtual FileError read(const std::string& path, std::string& bytes) = 0;

  /// Replaces or creates the file; one that has these bytes already keeps its time. After a failure
  /// the file may hold a part of `bytes`.
  virtual FileError write(const std::string& path, std::string_view bytes) = 0;

  /// The same, and whether the file had other bytes or wasn't there.
  virtual FileError writeIfOther(const std::string& path, std::string_view bytes, bool& changed) {
    changed = true;
    return write(path, bytes);
  }

  /// Adds `bytes` at the end of the file, which is created if it isn't there. A failure leaves the
  /// file at its old length.
  virtual FileError append(const std::string& path, std::string_view bytes) = 0;

  /// Replaces the file by a new one, written beside it, flushed and renamed over it, with the old
  /// one's permissions: a crash leaves the old or the new text. After a failure the old file is
  /// untouched. A symbolic link stays one: the file that it names is replaced.
  virtual FileError replaceAtomically(const std::string& path, std::string_view bytes) = 0;

  virtual FileError remove(const std::string& path) = 0;

  /// Creates the folder; its parent must be there. A folder that exists is a failure.
  virtual FileError createFolder(const std::string& path) = 0;

  /// Creates the folder and its missing parents. A folder that exists is a success.
  virtual FileError createFolders(const std::string& path) = 0;

  /// Whether a file of that name is there: no folder, device or pipe, which may never end.
  virtual bool isFile(const std::string& path) = 0;

  /// Whether a folder of that name is there, or a link to one.
  virtual bool isFolder(const std::string& path) = 0;

  /// The names in a folder, in no particular order; empty if it can't be read.
  virtual std::vector<std::string> list(const std::string& folder) = 0;

  /// Keeps the folder open as long as the result lives. Files right in it, named by a path that
  /// begins as `folder` does, are found without a walk down that path: a tenth of what it takes to
  /// write a small one. Only for the calling thread, which also ends it; the last of several
  /// counts. Null if the folder can't be opened or there is nothing to gain.
  virtual std::shared_ptr<const void> keepOpen(const std::string&) { return nullptr; }

  /// `path` made absolute against the current folder, "." and ".." resolved textually.
  virtual std::string absolute(const std::string& path) = 0;
};

/// The files of the machine, for whichever thread.
FileSystem& nativeFileSystem();

}  // namespace tamrikon
