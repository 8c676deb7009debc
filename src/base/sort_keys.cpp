#include "base/sort_keys.h"

#include <algorithm>
#include <numeric>

#include "base/case_folding.h"

namespace tamrikon {

void SortKeys::reserve(std::size_t count, std::size_t length) {
  ends_.reserve(count);
  texts_.reserve(length);
}

void SortKeys::append(std::string_view text) {
  appendLowered(texts_, text);
}

std::vector<std::uint32_t> SortKeys::order() const {
  std::vector<std::uint32_t> order(ends_.size());
  std::iota(order.begin(), order.end(), 0U);
  std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
    const int difference = key(a).compare(key(b));
    return difference != 0 ? difference < 0 : a < b;
  });
  return order;
}

}  // namespace tamrikon
