#include "base/closest_word.h"

#include <algorithm>

namespace tamrikon {
namespace {

char lowered(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::size_t editsBetween(std::string_view a, std::string_view b) {
  // Of the row before the last one, of the last one and of the one in work: the edits that take the
  // beginning of `a` to each beginning of `b`.
  std::vector<std::size_t> before(b.size() + 1), last(b.size() + 1), now(b.size() + 1);
  for (std::size_t m = 0; m <= b.size(); ++m) now[m] = m;
  for (std::size_t n = 1; n <= a.size(); ++n) {
    before.swap(last);
    last.swap(now);
    now[0] = n;
    for (std::size_t m = 1; m <= b.size(); ++m) {
      const bool same = lowered(a[n - 1]) == lowered(b[m - 1]);
      now[m] = std::min({last[m] + 1, now[m - 1] + 1, last[m - 1] + (same ? 0 : 1)});
      if (n > 1 && m > 1 && lowered(a[n - 1]) == lowered(b[m - 2]) &&
          lowered(a[n - 2]) == lowered(b[m - 1])) {
        now[m] = std::min(now[m], before[m - 2] + 1);
      }
    }
  }
  return now[b.size()];
}

}  // namespace

std::string closestWord(std::string_view word, const std::vector<std::string>& words) {
  constexpr std::size_t kLongest = 64;  // nobody misspells a longer one
  std::string closest;
  if (word.size() > kLongest) return closest;
  std::size_t fewest = word.size() / 3 + 1;
  for (const std::string& each : words) {
    const std::size_t edits = each.size() > kLongest ? fewest : editsBetween(word, each);
    if (edits >= fewest) continue;
    fewest = edits;
    closest = each;
  }
  return closest;
}

std::string didYouMean(std::string_view word, const std::vector<std::string>& words) {
  const std::string closest = closestWord(word, words);
  return closest.empty() ? std::string() : " (did you mean '" + closest + "'?)";
}

}  // namespace tamrikon
