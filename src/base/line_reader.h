// Walks the lines of a text and tells how each one ends.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tamrikon {

enum class LineEnd : std::uint8_t { none, cr, lf, crLf };

std::string_view textOf(LineEnd end);

/// CR LF, lone LF and lone CR end a line; behind the last line end there is no empty line. The text
/// must outlive the reader.
class LineReader {
 public:
  explicit LineReader(std::string_view text, std::size_t offset = 0)
      : text_(text), offset_(offset) {}

  /// False at the end of the text.
  bool next();

  std::string_view line() const { return line_; }
  LineEnd end() const { return end_; }

  /// Where the next line begins.
  std::size_t offset() const { return offset_; }

 private:
  std::size_t find(char c, std::size_t& known) const;

  std::string_view text_;
  std::size_t offset_;
  std::string_view line_;
  LineEnd end_ = LineEnd::none;
  std::size_t nextCr_ = 0;  // the places found last, so that no stretch is searched twice
  std::size_t nextLf_ = 0;
  bool started_ = false;
};

/// How the first line of `text` ends; CR LF if it has no line end.
LineEnd firstLineEnd(std::string_view text);

/// The lines of a text that is put into others: a line end at its end divides too, so that an empty
/// line follows it. At least one line; all are views into `text`.
std::vector<std::string_view> dividedLines(std::string_view text);

}  // namespace tamrikon
