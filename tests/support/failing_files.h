// Files of which one operation fails.
#pragma once

#include "platform/file_system.h"
#include "support/fault.h"

namespace tamrikon::test {

class FailingFiles final : public FileSystem {
 public:
  /// `files` must outlive this object.
  explicit FailingFiles(FileSystem& files) : files_(files) {}

  Fault fault;
  FileError error = FileError::diskFull;

  FileError read(const std::string& path, std::string& bytes) override {
    bytes.clear();
    return fault.strikes(path) ? error : files_.read(path, bytes);
  }
  /// A failing one writes half of the bytes.
  FileError write(const std::string& path, std::string_view bytes) override {
    if (!fault.strikes(path)) return files_.write(path, bytes);
    files_.write(path, bytes.substr(0, bytes.size() / 2));
    return error;
  }
  FileError append(const std::string& path, std::string_view bytes) override {
    return fault.strikes(path) ? error : files_.append(path, bytes);
  }
  FileError replaceAtomically(const std::string& path, std::string_view bytes) override {
    return fault.strikes(path) ? error : files_.replaceAtomically(path, bytes);
  }
  FileError remove(const std::string& path) override {
    return fault.strikes(path) ? error : files_.remove(path);
  }
  FileError createFolder(const std::string& path) override {
    return fault.strikes(path) ? error : files_.createFolder(path);
  }
  FileError createFolders(const std::string& path) override {
    return fault.strikes(path) ? error : files_.createFolders(path);
  }
  bool isFile(const std::string& path) override {
    return !fault.strikes(path) && files_.isFile(path);
  }
  bool isFolder(const std::string& path) override {
    return !fault.strikes(path) && files_.isFolder(path);
  }
  std::vector<std::string> list(const std::string& folder) override {
    return fault.strikes(folder) ? std::vector<std::string>() : files_.list(folder);
  }
  std::shared_ptr<const void> keepOpen(const std::string& folder) override {
    return files_.keepOpen(folder);
  }
  std::string absolute(const std::string& path) override { return files_.absolute(path); }

 private:
  FileSystem& files_;
};

}  // namespace tamrikon::test
