#include "base/key_index.h"

#include <algorithm>

#include "base/case_folding.h"

namespace tamrikon {
namespace {

std::uint32_t hashOf(std::string_view key) {
  return static_cast<std::uint32_t>(CaseInsensitiveHash()(key));
}

}  // namespace

/// The slot that holds `key`, or the free one in which it belongs.
std::size_t KeyIndex::slotOf(std::string_view key, std::uint32_t hash) const {
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
    const Slot& slot = slots_[at];
    if (slot.number == 0) return at;
    if (slot.hash != hash) continue;
    const std::string_view known(texts_.data() + slot.offset, slot.length);
    if (equalIgnoringCase(known, key)) return at;
  }
}

std::size_t KeyIndex::find(std::string_view key) const {
  if (slots_.empty()) return kNone;
  const Slot& slot = slots_[slotOf(key, hashOf(key))];
  return slot.number == 0 ? kNone : slot.number - 1;
}

bool KeyIndex::insert(std::string_view key) {
  if (size_ * 2 >= slots_.size()) grow();
  const std::uint32_t hash = hashOf(key);
  Slot& slot = slots_[slotOf(key, hash)];
  if (slot.number != 0) return false;
  slot = {hash, static_cast<std::uint32_t>(++size_), static_cast<std::uint32_t>(texts_.size()),
          static_cast<std::uint32_t>(key.size())};
  texts_ += key;
  return true;
}

void KeyIndex::grow() {
  std::vector<Slot> old(std::max<std::size_t>(slots_.size() * 2, 16));
  old.swap(slots_);
  const std::size_t mask = slots_.size() - 1;
  for (const Slot& slot : old) {
    if (slot.number == 0) continue;
    std::size_t at = slot.hash & mask;
    while (slots_[at].number != 0) at = (at + 1) & mask;
    slots_[at] = slot;
  }
}

}  // namespace tamrikon
