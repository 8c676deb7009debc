// Numbers text keys that ignore case, in the order in which they come.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/case_folding.h"

namespace tamrikon {

/// An open-addressed table: large projects make tens of thousands of keys and look each up many
/// times. The keys themselves stay with its user, who tells them by `keyOf(n)`, n being a number
/// that was given: whoever finds a value needs the memory that its key is in anyway.
class KeyIndex {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  /// The number of `key`, from 0, or kNone.
  template <typename KeyOf>
  std::size_t find(std::string_view key, const KeyOf& keyOf) const {
    if (slots_.empty()) return kNone;
    const Slot& slot = slots_[slotOf(key, hashOf(key), keyOf)];
    return slot.number == 0 ? kNone : slot.number - 1;
  }

  /// Gives `key` the next number. False, and no change, if it has one already.
  template <typename KeyOf>
  bool insert(std::string_view key, const KeyOf& keyOf) {
    if (size_ * 2 >= slots_.size()) grow();
    const std::uint32_t hash = hashOf(key);
    Slot& slot = slots_[slotOf(key, hash, keyOf)];
    if (slot.number != 0) return false;
    slot = {hash, static_cast<std::uint32_t>(++size_)};
    return true;
  }

 private:
  struct Slot {
    std::uint32_t hash;
    std::uint32_t number;  // of the key, from 1; 0 in a free slot
  };

  static std::uint32_t hashOf(std::string_view key) {
    return static_cast<std::uint32_t>(CaseInsensitiveHash()(key));
  }

  /// The slot that holds `key`, or the free one in which it belongs.
  template <typename KeyOf>
  std::size_t slotOf(std::string_view key, std::uint32_t hash, const KeyOf& keyOf) const {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
      const Slot& slot = slots_[at];
      if (slot.number == 0) return at;
      if (slot.hash == hash && equalIgnoringCase(keyOf(slot.number - 1), key)) return at;
    }
  }

  void grow();

  std::size_t size_ = 0;
  std::vector<Slot> slots_;  // a power of two, never more than half full
};

}  // namespace tamrikon
