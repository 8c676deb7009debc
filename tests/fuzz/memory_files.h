// Files that are nowhere but in memory, as a fuzzer reads and writes thousands a second.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace tamrikon::test {

class MemoryFiles final : public FileSystem {
 public:
  std::map<std::string, std::string> files;  // by path

  FileError read(const std::string& path, std::string& bytes) override {
    bytes.clear();
    const auto found = files.find(path);
    if (found == files.end()) return FileError::fileNotFound;
    bytes = found->second;
    return FileError::none;
  }
  FileError write(const std::string& path, std::string_view bytes) override {
    files[path] = bytes;
    return FileError::none;
  }
  FileError append(const std::string& path, std::string_view bytes) override {
    files[path].append(bytes);
    return FileError::none;
  }
  FileError replaceAtomically(const std::string& path, std::string_view bytes) override {
    return write(path, bytes);
  }
  FileError remove(const std::string& path) override {
    return files.erase(path) == 1 ? FileError::none : FileError::fileNotFound;
  }
  FileError createFolder(const std::string&) override { return FileError::none; }
  FileError createFolders(const std::string&) override { return FileError::none; }
  bool isFile(const std::string& path) override { return files.count(path) == 1; }
  bool isFolder(const std::string&) override { return true; }
  std::vector<std::string> list(const std::string&) override { return {}; }
  std::string absolute(const std::string& path) override { return path; }
};

}  // namespace tamrikon::test
