// An ordered list of values, numbered from 1, each under a text key that ignores case.
#pragma once

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "base/key_index.h"

namespace tamrikon {

template <typename T>
class KeyedList {
 public:
  /// Adds `value` under `key`. False, and no change, if the key is there already.
  bool add(T value, std::string_view key) {
    if (!keys_.insert(key)) return false;
    values_.push_back(std::move(value));
    return true;
  }

  bool contains(std::string_view key) const { return keys_.find(key) != KeyIndex::kNone; }

  /// The value under `key`, or null.
  const T* find(std::string_view key) const {
    const std::size_t number = keys_.find(key);
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
  std::vector<T> values_;
  KeyIndex keys_;  // numbers the keys as their values stand here
};

}  // namespace tamrikon
