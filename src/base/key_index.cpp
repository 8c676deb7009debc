#include "base/key_index.h"

#include <algorithm>

namespace tamrikon {

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
