#include "base/line_diff.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace tamrikon {
namespace {

/// Finds lines that both texts have, in the same order.
class Comparison {
 public:
  Comparison(LineSpan oldLines, LineSpan newLines)
      : old_(oldLines), new_(newLines), partner_(oldLines.size(), kNone) {
    open_.push_back({0, old_.size(), 0, new_.size()});
    while (!open_.empty()) {
      LineChange block = open_.back();
      open_.pop_back();
      pairEnds(block);
      if (block.oldSize() == 0 || block.newSize() == 0 || pairSubsequence(block)) continue;
      divideAtUniqueLines(block);
    }
  }

  /// What differs, in order.
  std::vector<LineChange> changes() const {
    std::vector<LineChange> result;
    LineChange change{0, 0, 0, 0};
    const auto close = [&](std::size_t oldEnd, std::size_t newEnd) {
      change.oldEnd = oldEnd;
      change.newEnd = newEnd;
      if (change.oldSize() != 0 || change.newSize() != 0) result.push_back(change);
      change.oldStart = oldEnd + 1;
      change.newStart = newEnd + 1;
    };
    for (std::size_t i = 0; i < partner_.size(); ++i) {
      if (partner_[i] != kNone) close(i, partner_[i]);
    }
    close(old_.size(), new_.size());
    return result;
  }

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  bool pairIfEqual(std::size_t oldLine, std::size_t newLine) {
    if (old_[oldLine] != new_[newLine]) return false;
    partner_[oldLine] = newLine;
    return true;
  }

  /// The end first, as what is added to sources goes above what it belongs to.
  void pairEnds(LineChange& block) {
    while (block.oldSize() != 0 && block.newSize() != 0 &&
           pairIfEqual(block.oldEnd - 1, block.newEnd - 1)) {
      --block.oldEnd;
      --block.newEnd;
    }
    while (block.oldSize() != 0 && block.newSize() != 0 &&
           pairIfEqual(block.oldStart, block.newStart)) {
      ++block.oldStart;
      ++block.newStart;
    }
  }

  /// Pairs all lines of the shorter side if the longer one has them in their order.
  bool pairSubsequence(const LineChange& block) {
    std::vector<std::pair<std::size_t, std::size_t>> pairs;
    const bool isOldShorter = block.oldSize() <= block.newSize();
    std::size_t oldLine = block.oldEnd;
    std::size_t newLine = block.newEnd;
    while (oldLine > block.oldStart && newLine > block.newStart) {
      if (old_[oldLine - 1] == new_[newLine - 1]) {
        pairs.emplace_back(--oldLine, --newLine);
      } else {
        --(isOldShorter ? newLine : oldLine);
      }
    }
    if (isOldShorter ? oldLine > block.oldStart : newLine > block.newStart) return false;
    for (const auto& [paired, with] : pairs) partner_[paired] = with;
    return true;
  }

  /// Pairs lines that each side of the block has once, the longest row of them that keeps its
  /// order, and leaves what stands between them to the next steps.
  void divideAtUniqueLines(LineChange block) {
    struct Anchor {
      std::size_t oldLine, newLine;
      std::size_t previous;  // in the row that ends here
    };
    std::vector<Anchor> anchors;
    std::vector<std::size_t> rows;  // by length - 1: the anchor that ends the row with the least
    for (const LinePair& pair : linesFoundOnce(old_.subspan(block.oldStart, block.oldSize()),
                                               new_.subspan(block.newStart, block.newSize()))) {
      const std::size_t oldLine = block.oldStart + pair.oldLine;
      const std::size_t newLine = block.newStart + pair.newLine;
      const auto row = std::partition_point(rows.begin(), rows.end(), [&](std::size_t end) {
        return anchors[end].newLine < newLine;
      });
      anchors.push_back({oldLine, newLine, row == rows.begin() ? kNone : *(row - 1)});
      if (row == rows.end()) {
        rows.push_back(anchors.size() - 1);
      } else {
        *row = anchors.size() - 1;
      }
    }
    if (rows.empty()) return;
    for (std::size_t at = rows.back(); at != kNone; at = anchors[at].previous) {
      const Anchor& anchor = anchors[at];
      partner_[anchor.oldLine] = anchor.newLine;
      open_.push_back({anchor.oldLine + 1, block.oldEnd, anchor.newLine + 1, block.newEnd});
      block.oldEnd = anchor.oldLine;
      block.newEnd = anchor.newLine;
    }
    open_.push_back(block);
  }

  LineSpan old_;
  LineSpan new_;
  std::vector<std::size_t> partner_;  // by old line
  std::vector<LineChange> open_;
};

}  // namespace

std::vector<LineChange> changedLines(LineSpan oldLines, LineSpan newLines) {
  return Comparison(oldLines, newLines).changes();
}

std::vector<LinePair> linesFoundOnce(LineSpan oldLines, LineSpan newLines) {
  struct Seen {
    std::size_t oldCount = 0, newCount = 0;
    std::size_t newLine = 0;
  };
  std::unordered_map<std::string_view, Seen> seen;
  for (const std::string_view line : oldLines) ++seen[line].oldCount;
  for (std::size_t i = 0; i < newLines.size(); ++i) {
    Seen& line = seen[newLines[i]];
    ++line.newCount;
    line.newLine = i;
  }
  std::vector<LinePair> pairs;
  for (std::size_t i = 0; i < oldLines.size(); ++i) {
    const Seen& line = seen[oldLines[i]];
    if (line.oldCount == 1 && line.newCount == 1) pairs.push_back({i, line.newLine});
  }
  return pairs;
}

}  // namespace tamrikon
