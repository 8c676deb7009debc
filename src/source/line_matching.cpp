#include "source/line_matching.h"

#include <algorithm>
#include <unordered_map>

#include "vb/scanning.h"

namespace tamrikon {
namespace {

using Lines = std::span<const std::string_view>;

/// How many characters two texts have in common at their starts or their ends.
std::size_t likeness(std::string_view a, std::string_view b) {
  const auto start = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
  const auto end = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend()).first - a.rbegin();
  return static_cast<std::size_t>(std::max(start, end));
}

/// `line` has been divided into `parts` (at least one): the one that goes on as that line. What
/// follows its beginning, such as a comment, may be longer than that is.
std::size_t partThatGoesOn(std::string_view line, Lines parts) {
  line = trimBlanks(line);
  std::size_t best = 0;
  std::size_t most = 0;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const std::string_view part = trimBlanks(parts[i]);
    if (!part.empty() && line.starts_with(part)) return i;
    const std::size_t like = likeness(line, part);
    if (like > most) best = i;
    most = std::max(most, like);
  }
  return best;
}

/// Whether something of the end of `old` stands at the end of `line`.
bool endsLike(std::string_view line, std::string_view old) {
  line = trimBlanks(line);
  old = trimBlanks(old);
  return !line.empty() && !old.empty() && line.back() == old.back();
}

class Pairing {
 public:
  Pairing(Lines old, Lines now)
      : old_(old), now_(now), successors_(old.size(), kGone), isTaken_(now.size()) {}

  void pairLinesThatAreOnce() {
    struct Found {
      std::size_t old = 0;
      std::size_t now = 0;
      std::size_t oldCount = 0;
      std::size_t nowCount = 0;
    };
    std::unordered_map<std::string_view, Found> found;
    for (std::size_t i = 0; i < old_.size(); ++i) {
      Found& entry = found[trimBlanks(old_[i])];
      entry.old = i;
      ++entry.oldCount;
    }
    for (std::size_t i = 0; i < now_.size(); ++i) {
      Found& entry = found[trimBlanks(now_[i])];
      entry.now = i;
      ++entry.nowCount;
    }
    for (const auto& [text, entry] : found) {
      if (text.empty() || entry.oldCount != 1 || entry.nowCount != 1) continue;
      successors_[entry.old] = entry.now;
      isTaken_[entry.now] = true;
    }
  }

  void pairLinesBetween() {
    for (std::size_t start = 0; start < old_.size(); ++start) {
      if (successors_[start] != kGone) continue;
      std::size_t end = start;
      while (end < old_.size() && successors_[end] == kGone) ++end;
      const std::size_t from = start == 0 ? 0 : successors_[start - 1] + 1;
      std::size_t to = from;
      while (to < now_.size() && !isTaken_[to]) ++to;
      if (from < to) pairInOrder(start, end, from, to);
      start = end;
    }
  }

  std::vector<std::size_t> take() { return std::move(successors_); }

 private:
  void pairInOrder(std::size_t oldStart, std::size_t oldEnd, std::size_t start, std::size_t end) {
    const std::size_t pairs = std::min(oldEnd - oldStart, end - start);
    for (std::size_t i = 0; i < pairs; ++i) successors_[oldStart + i] = start + i;
    const std::size_t last = oldEnd - 1;
    if (successors_[last] != kGone) {
      const Lines parts = now_.subspan(successors_[last], end - successors_[last]);
      successors_[last] += partThatGoesOn(old_[last], parts);
    } else if (endsLike(now_[end - 1], old_[last])) {
      successors_[last] = end - 1;
    }
  }

  Lines old_;
  Lines now_;
  std::vector<std::size_t> successors_;
  std::vector<bool> isTaken_;
};

}  // namespace

LineMatch matchLines(Lines old, Lines now) {
  LineMatch match;
  const std::size_t most = std::min(old.size(), now.size());
  while (match.prefix < most && old[match.prefix] == now[match.prefix]) ++match.prefix;
  const std::size_t left = most - match.prefix;
  while (match.suffix < left &&
         old[old.size() - 1 - match.suffix] == now[now.size() - 1 - match.suffix]) {
    ++match.suffix;
  }
  return match;
}

std::vector<std::size_t> successorsOf(Lines old, Lines now) {
  Pairing pairing(old, now);
  pairing.pairLinesThatAreOnce();
  pairing.pairLinesBetween();
  return pairing.take();
}

}  // namespace tamrikon
