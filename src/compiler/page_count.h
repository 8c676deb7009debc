// How many files the pages of a run are in, each counted once.
#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_map>

namespace tamrikon {

class PageCount {
 public:
  /// A file was written: with other bytes than it had, if `changed` is set.
  void add(std::string_view path, bool changed);

  /// The file is put together piece by piece, so that nobody knows whether it changes.
  void addPieces(std::string_view path);

  std::size_t files() const { return files_.size(); }

  /// Those that have other bytes now, or are new.
  std::size_t changed() const { return changed_; }
  bool changedIsKnown() const { return changedIsKnown_; }

 private:
  std::unordered_map<std::size_t, bool> files_;  // whether they changed, by hashes of their paths
  std::size_t changed_ = 0;
  bool changedIsKnown_ = true;
};

}  // namespace tamrikon
