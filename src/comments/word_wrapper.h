// Keeps the lines of a comment within a width.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tamrikon {

/// Widths count characters; 0 or less means no wrapping. A line breaks at a blank, or at a tab if
/// no blank is in reach, and that one character goes. Words are never cut: one that is longer than
/// the width stands alone on a longer line.
class WordWrapper {
 public:
  /// The pieces of all lines in order. Two lines are never joined.
  std::vector<std::string> makeWordWrapping(const std::vector<std::string>& lines,
                                            int lineLength) const;

  /// The pieces of one line, which is empty afterwards. An empty line gives one empty piece.
  std::vector<std::string> getWrappedLine(std::string& line, int maxLen) const;

 private:
  /// Where the line breaks: a position in bytes, from 1; 0 if it fits or can't be broken.
  static std::size_t findBreak(std::string_view line, int maxLen);
};

}  // namespace tamrikon
