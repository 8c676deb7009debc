// Texts to sort by without regard to case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tamrikon {

/// They stand one behind the other: few comparisons are made for each, so that it counts how they
/// are built.
class SortKeys {
 public:
  /// `length` is that of all keys in bytes, roughly.
  void reserve(std::size_t count, std::size_t length);

  /// Adds to the key in work.
  void append(std::string_view text);

  /// Ends the key in work.
  void endKey() { ends_.push_back(texts_.size()); }

  /// The numbers of the keys, from 0, sorted; equal ones keep their order.
  std::vector<std::uint32_t> order() const;

 private:
  std::string_view key(std::size_t n) const {
    const std::size_t start = n == 0 ? 0 : ends_[n - 1];
    return std::string_view(texts_).substr(start, ends_[n] - start);
  }

  std::string texts_;
  std::vector<std::size_t> ends_;
};

}  // namespace tamrikon
