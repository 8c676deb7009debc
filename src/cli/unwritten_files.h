// The files of a run that changes nothing.
#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace tamrikon {

/// Reads from another file system, and keeps what was to be replaced in memory: the files stay as
/// they are, and reading gives that. Nothing else can be written.
class UnwrittenFiles final : public FileSystem {
 public:
  /// `files` must outlive this object.
  explicit UnwrittenFiles(FileSystem& files) : files_(files) {}

  struct Replacement {
    std::string path;
    std::string before;
    std::string after;
  };

  /// In the order in which the files were to be replaced.
  const std::vector<Replacement>& replacements() const { return replacements_; }

  FileError replaceAtomically(const std::string& path, std::string_view bytes) override;

  FileError read(const std::string& path, std::string& bytes) override {
    return files_.read(path, bytes);
  }
  bool isFile(const std::string& path) override { return files_.isFile(path); }
  bool isFolder(const std::string& path) override { return files_.isFolder(path); }
  std::vector<std::string> list(const std::string& folder) override { return files_.list(folder); }
  std::string absolute(const std::string& path) override { return files_.absolute(path); }

  FileError write(const std::string&, std::string_view) override { return kRefused; }
  FileError append(const std::string&, std::string_view) override { return kRefused; }
  FileError remove(const std::string&) override { return kRefused; }
  FileError createFolder(const std::string&) override { return kRefused; }
  FileError createFolders(const std::string&) override { return kRefused; }

 private:
  static constexpr FileError kRefused = FileError::permissionDenied;

  FileSystem& files_;
  std::vector<Replacement> replacements_;
};

}  // namespace tamrikon
