// Which of the lines that are replaced live on in the lines that come instead. Blanks at the
// start and the end of a line don't count but for matchLines().
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/line_diff.h"

namespace tamrikon {

/// How many lines are the same at the start and at the end; no line counts twice.
struct LineMatch {
  std::size_t prefix = 0;
  std::size_t suffix = 0;
};
LineMatch matchLines(LineSpan old, LineSpan now);

/// In place of an index: the line doesn't live on.
constexpr std::size_t kGone = SIZE_MAX;

/// For each of the `old` lines the index of the line of `now` that it lives on in, or kGone. A line
/// that both have once goes where it now stands; lines between those go in their order. Of the
/// parts of a line that was divided, one goes on; lines that were joined go on in the same one.
std::vector<std::size_t> successorsOf(LineSpan old, LineSpan now);

}  // namespace tamrikon
