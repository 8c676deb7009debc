#include "cli/unified_diff.h"

#include <algorithm>
#include <cstdio>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tamrikon {
namespace {

using Lines = std::vector<std::string_view>;

/// Each with its LF; the last one may lack it.
Lines linesOf(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, size));
    text.remove_prefix(size);
  }
  return lines;
}

/// Lines of the old text and those of the new one that stand in their place.
struct Block {
  std::size_t oldStart, oldEnd;
  std::size_t newStart, newEnd;

  std::size_t oldSize() const { return oldEnd - oldStart; }
  std::size_t newSize() const { return newEnd - newStart; }
};

/// Finds lines that both texts have, in the same order.
class Comparison {
 public:
  Comparison(const Lines& oldLines, const Lines& newLines)
      : old_(oldLines), new_(newLines), partner_(oldLines.size(), kNone) {
    open_.push_back({0, old_.size(), 0, new_.size()});
    while (!open_.empty()) {
      Block block = open_.back();
      open_.pop_back();
      pairEnds(block);
      if (block.oldSize() == 0 || block.newSize() == 0 || pairSubsequence(block)) continue;
      divideAtUniqueLines(block);
    }
  }

  /// What differs, in order.
  std::vector<Block> changes() const {
    std::vector<Block> result;
    Block change{0, 0, 0, 0};
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
  void pairEnds(Block& block) {
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
  bool pairSubsequence(const Block& block) {
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
  void divideAtUniqueLines(Block block) {
    struct Seen {
      std::size_t oldCount = 0, newCount = 0;
      std::size_t newLine = 0;
    };
    std::unordered_map<std::string_view, Seen> seen;
    for (std::size_t i = block.oldStart; i < block.oldEnd; ++i) ++seen[old_[i]].oldCount;
    for (std::size_t j = block.newStart; j < block.newEnd; ++j) {
      Seen& line = seen[new_[j]];
      ++line.newCount;
      line.newLine = j;
    }
    struct Anchor {
      std::size_t oldLine, newLine;
      std::size_t previous;  // in the row that ends here
    };
    std::vector<Anchor> anchors;
    std::vector<std::size_t> rows;  // by length - 1: the anchor that ends the row with the least
    for (std::size_t i = block.oldStart; i < block.oldEnd; ++i) {
      const Seen& line = seen[old_[i]];
      if (line.oldCount != 1 || line.newCount != 1) continue;
      const auto row = std::partition_point(rows.begin(), rows.end(), [&](std::size_t end) {
        return anchors[end].newLine < line.newLine;
      });
      anchors.push_back({i, line.newLine, row == rows.begin() ? kNone : *(row - 1)});
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

  const Lines& old_;
  const Lines& new_;
  std::vector<std::size_t> partner_;  // by old line
  std::vector<Block> open_;
};

/// A name with blanks needs a tab to end it, and one with other awkward characters quotes.
std::string fileLine(std::string_view mark, std::string_view path) {
  std::string name;
  bool isAwkward = false;
  for (const char c : path) {
    if (const auto code = static_cast<unsigned char>(c); code < ' ' || code == 0x7F) {
      char octal[8];
      std::snprintf(octal, sizeof octal, "\\%03o", code);
      name += octal;
    } else {
      if (c == '"' || c == '\\') name += '\\';
      name += c;
    }
    isAwkward = isAwkward || name.back() != c || c == '"' || c == '\\';
  }
  std::string line = std::string(mark) + " ";
  if (isAwkward) return line + '"' + name + "\"\n";
  line += path;
  return line + (path.find(' ') == std::string_view::npos ? "\n" : "\t\n");
}

std::string rangeOf(std::size_t start, std::size_t size) {
  // Nothing stands behind the line before it.
  std::string range = std::to_string(size == 0 ? start : start + 1);
  return size == 1 ? range : range + "," + std::to_string(size);
}

class HunkWriter {
 public:
  HunkWriter(const Lines& oldLines, const Lines& newLines, std::string& text)
      : old_(oldLines), new_(newLines), text_(text) {}

  /// Changes that are so near to each other that their contexts touch.
  void write(const Block* first, const Block* last) {
    const std::size_t above = std::min(kContext, first->oldStart);
    const std::size_t below = std::min(kContext, old_.size() - last->oldEnd);
    const Block all{first->oldStart - above, last->oldEnd + below, first->newStart - above,
                    last->newEnd + below};
    text_ += "@@ -" + rangeOf(all.oldStart, all.oldSize()) + " +" +
             rangeOf(all.newStart, all.newSize()) + " @@\n";
    std::size_t line = all.oldStart;
    for (const Block* change = first; change <= last; ++change) {
      add(' ', old_, line, change->oldStart);
      add('-', old_, change->oldStart, change->oldEnd);
      add('+', new_, change->newStart, change->newEnd);
      line = change->oldEnd;
    }
    add(' ', old_, line, all.oldEnd);
  }

  static constexpr std::size_t kContext = 3;

 private:
  void add(char mark, const Lines& lines, std::size_t start, std::size_t end) {
    for (std::size_t i = start; i < end; ++i) {
      text_ += mark;
      text_ += lines[i];
      if (!lines[i].ends_with('\n')) text_ += "\n\\ No newline at end of file\n";
    }
  }

  const Lines& old_;
  const Lines& new_;
  std::string& text_;
};

}  // namespace

std::string unifiedDiff(std::string_view path, std::string_view before, std::string_view after) {
  const Lines oldLines = linesOf(before);
  const Lines newLines = linesOf(after);
  const std::vector<Block> changes = Comparison(oldLines, newLines).changes();
  if (changes.empty()) return {};
  std::string text = fileLine("---", path) + fileLine("+++", path);
  HunkWriter hunks(oldLines, newLines, text);
  const Block* first = changes.data();
  const Block* const end = first + changes.size();
  for (const Block* last = first; last != end; ++last) {
    const bool isNear =
        last + 1 != end && last[1].oldStart - last->oldEnd <= 2 * HunkWriter::kContext;
    if (isNear) continue;
    hunks.write(first, last);
    first = last + 1;
  }
  return text;
}

}  // namespace tamrikon
