#include "source/line_matching.h"

#include <algorithm>

#include "vb/scanning.h"

namespace tamrikon {
namespace {

/// How many characters two texts have in common at their starts or their ends.
std::size_t likeness(std::string_view a, std::string_view b) {
  const auto start = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
  const auto end = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend()).first - a.rbegin();
  return static_cast<std::size_t>(std::max(start, end));
}

/// `line` has been divided into `parts` (at least one): the one that goes on as that line. What
/// follows its beginning, such as a comment, may be longer than that is.
std::size_t partThatGoesOn(std::string_view line, LineSpan parts) {
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

std::vector<std::string_view> trimmed(LineSpan lines) {
  std::vector<std::string_view> result(lines.size());
  std::transform(lines.begin(), lines.end(), result.begin(), trimBlanks);
  return result;
}

class Pairing {
 public:
  Pairing(LineSpan old, LineSpan now)
      : old_(old), now_(now), successors_(old.size(), kGone), isTaken_(now.size()) {}

  void pairLinesThatAreOnce() {
    const std::vector<std::string_view> old = trimmed(old_);
    const std::vector<std::string_view> now = trimmed(now_);
    for (const LinePair& pair : linesFoundOnce(old, now)) {
      if (old[pair.oldLine].empty()) continue;
      successors_[pair.oldLine] = pair.newLine;
      isTaken_[pair.newLine] = true;
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
      const LineSpan parts = now_.subspan(successors_[last], end - successors_[last]);
      successors_[last] += partThatGoesOn(old_[last], parts);
    } else if (endsLike(now_[end - 1], old_[last])) {
      successors_[last] = end - 1;
    }
  }

  LineSpan old_;
  LineSpan now_;
  std::vector<std::size_t> successors_;
  std::vector<bool> isTaken_;
};

}  // namespace

LineMatch matchLines(LineSpan old, LineSpan now) {
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

std::vector<std::size_t> successorsOf(LineSpan old, LineSpan now) {
  Pairing pairing(old, now);
  pairing.pairLinesThatAreOnce();
  pairing.pairLinesBetween();
  return pairing.take();
}

}  // namespace tamrikon
