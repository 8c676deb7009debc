// Numbers text keys that ignore case, in the order in which they come.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tamrikon {

/// An open-addressed table: large projects make tens of thousands of keys and look each up many
/// times, and a lookup here touches little more memory than the key itself.
class KeyIndex {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  /// The number of `key`, from 0, or kNone.
  std::size_t find(std::string_view key) const;

  /// Gives `key` the next number. False, and no change, if it has one already.
  bool insert(std::string_view key);

  std::size_t size() const { return size_; }

 private:
  struct Slot {
    std::uint32_t hash;
    std::uint32_t number;  // of the key, from 1; 0 in a free slot
    std::uint32_t offset;  // of the key in texts_
    std::uint32_t length;
  };

  std::size_t slotOf(std::string_view key, std::uint32_t hash) const;
  void grow();

  std::size_t size_ = 0;
  std::string texts_;        // all keys, one behind the other
  std::vector<Slot> slots_;  // a power of two, never more than half full
};

}  // namespace tamrikon
