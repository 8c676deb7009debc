// An ordered list of values, numbered from 1, each under a text key that ignores case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/key_index.h"

namespace tamrikon {

/// Keeps the keys of a list beside its values.
class KeptKeys {
 public:
  void add(std::string_view key) {
    texts_ += key;
    ends_.push_back(static_cast<std::uint32_t>(texts_.size()));
  }

  template <typename T>
  std::string_view of(const T&, std::size_t n) const {
    const std::size_t start = n == 0 ? 0 : ends_[n - 1];
    return std::string_view(texts_).substr(start, ends_[n] - start);
  }

 private:
  std::string texts_;  // all keys, one behind the other
  std::vector<std::uint32_t> ends_;
};

/// `Keys` is another class with these operations where the values have their keys themselves.
template <typename T, typename Keys = KeptKeys>
class KeyedList {
 public:
  /// Adds `value` under `key`. False, and no change, if the key is there already.
  bool add(T value, std::string_view key) {
    if (!index_.insert(key, keyOf())) return false;
    keys_.add(key);
    values_.push_back(std::move(value));
    return true;
  }

  bool contains(std::string_view key) const { return find(key) != nullptr; }

  /// The value under `key`, or null.
  const T* find(std::string_view key) const {
    const std::size_t number = index_.find(key, keyOf());
    return number == KeyIndex::kNone ? nullptr : &values_[number];
  }
  T* find(std::string_view key) {
    return const_cast<T*>(static_cast<const KeyedList*>(this)->find(key));
  }

  /// The value number `n`, from 1 to size().
  const T& item(std::size_t n) const { return values_[n - 1]; }

  std::size_t size() const { return values_.size(); }
  bool empty() const { return values_.empty(); }
  auto begin() const { return values_.begin(); }
  auto end() const { return values_.end(); }

 private:
  auto keyOf() const {
    return [this](std::size_t n) { return keys_.of(values_[n], n); };
  }

  std::vector<T> values_;
  Keys keys_;
  KeyIndex index_;  // numbers the keys as their values stand here
};

}  // namespace tamrikon
