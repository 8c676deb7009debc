// Compares two texts line by line.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace tamrikon {

using LineSpan = std::span<const std::string_view>;

/// Lines of the old text and those of the new one that stand in their place. Indices from 0, each
/// end one past the last line.
struct LineChange {
  std::size_t oldStart, oldEnd;
  std::size_t newStart, newEnd;

  std::size_t oldSize() const { return oldEnd - oldStart; }
  std::size_t newSize() const { return newEnd - newStart; }
};

/// What differs, in order; between two changes stand lines that both texts have. Lines that were
/// only added, or only removed, are found as such; where lines were exchanged, more of them may be
/// in a change than need be.
std::vector<LineChange> changedLines(LineSpan oldLines, LineSpan newLines);

/// A line of the old text and the same line of the new one.
struct LinePair {
  std::size_t oldLine, newLine;
};

/// The lines that each of the texts has exactly once, in the order of the old one.
std::vector<LinePair> linesFoundOnce(LineSpan oldLines, LineSpan newLines);

}  // namespace tamrikon
