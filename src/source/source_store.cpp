#include "source/source_store.h"

#include <climits>
#include <utility>

namespace tamrikon {

Source::Source(std::string path, std::string bytes)
    : disk_(std::move(path), bytes),
      bytes_(std::move(bytes)),
      evidence_(readCodePageEvidence(bytes_)) {}

void Source::decode(const CodePage& page) {
  if (file_) return;
  file_ = std::make_unique<SourceFile>(std::exchange(bytes_, {}), page);
  attributes_ = std::make_unique<MemberAttributes>(*file_);
}

std::optional<std::string> Source::reload(FileSystem& files) {
  std::string bytes;
  std::optional<std::string> failure = disk_.read(files, bytes);
  if (failure) return failure;
  ++generation_;
  attributes_->forgetHeldIds();
  file_->reload(std::move(bytes));
  return std::nullopt;
}

Source* SourceStore::open(const std::string& path) {
  const auto [entry, isNew] = byPath_.try_emplace(path, nullptr);
  if (!isNew) return entry->second;
  std::string bytes;
  if (files_.read(path, bytes) != FileError::none) return nullptr;
  if (bytes.size() > INT_MAX) return nullptr;  // its lines couldn't be counted
  sources_.push_back(std::make_unique<Source>(path, std::move(bytes)));
  entry->second = sources_.back().get();
  return entry->second;
}

}  // namespace tamrikon
