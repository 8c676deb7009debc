// The source files of all open projects, each read and held once.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/file_system.h"
#include "source/code_page_guess.h"
#include "source/file_on_disk.h"
#include "source/member_attributes.h"
#include "source/source_file.h"

namespace tamrikon {

/// One file. It is decoded when the first project that names it has found its code page, and keeps
/// that page for all others.
class Source {
 public:
  Source(std::string path, std::string bytes);

  const std::string& path() const { return disk_.path(); }
  FileOnDisk& disk() { return disk_; }
  const CodePageEvidence& evidence() const { return evidence_; }

  /// What was read, as long as it isn't decoded; empty from then on.
  std::string_view undecoded() const { return bytes_; }

  /// Has no effect on a file that is decoded already.
  void decode(const CodePage& page);

  // Both for decoded files alone.
  SourceFile& file() { return *file_; }
  MemberAttributes& attributes() { return *attributes_; }

  /// Reads a decoded file again, in its code page. A message if that fails; nothing has changed
  /// then.
  std::optional<std::string> reload(FileSystem& files);

  /// Grows with each reload.
  unsigned generation() const { return generation_; }

 private:
  FileOnDisk disk_;
  std::string bytes_;  // until they are decoded
  CodePageEvidence evidence_;
  std::unique_ptr<SourceFile> file_;
  std::unique_ptr<MemberAttributes> attributes_;
  unsigned generation_ = 1;
};

class SourceStore {
 public:
  explicit SourceStore(FileSystem& files) : files_(files) {}

  /// The file at the absolute `path`, read unless it was before. Null if it can't be read.
  Source* open(const std::string& path);

  const std::vector<std::unique_ptr<Source>>& sources() const { return sources_; }

 private:
  FileSystem& files_;
  std::vector<std::unique_ptr<Source>> sources_;
  std::unordered_map<std::string, Source*> byPath_;
};

}  // namespace tamrikon
