// Divides source into statements: lines are joined at " _", comments cut, and what is left is
// divided at colons.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tamrikon {

/// Walks the lines of a module, each joined with those that continue it.
class LogicalLines {
 public:
  /// The vector must outlive this object, and each text().
  explicit LogicalLines(const std::vector<std::string_view>& lines) : lines_(lines) {}

  /// False at the end of the module.
  bool next();

  /// The joined text; each underscore at a line's end is left out.
  std::string_view text() const { return text_; }

  /// The physical lines that it covers, from 1.
  int firstLine() const { return first_; }
  int lastLine() const { return last_; }

  /// The number of the line among all logical lines.
  int number() const { return number_; }

  /// The physical line that holds the character at `offset` of the text.
  int lineAt(std::size_t offset) const;

 private:
  const std::vector<std::string_view>& lines_;
  std::string_view text_;
  std::string joined_;
  std::vector<std::size_t> starts_;  // offsets of the physical lines in joined_
  int first_ = 0;
  int last_ = 0;
  int number_ = 0;
};

/// Walks the statements of one logical line. A colon, a comma or an apostrophe in a literal or in a
/// name in brackets divides nothing.
class Statements {
 public:
  explicit Statements(std::string_view text) : text_(text) {}

  /// False at the end of the line or at its comment.
  bool next();

  /// The statement, without the blanks around it; empty between two colons.
  std::string_view text() const { return statement_; }

  /// Offset of the statement in the line.
  std::size_t offset() const { return static_cast<std::size_t>(statement_.data() - text_.data()); }

  /// Offset of the last character so far that is neither blank nor comment; npos if there is none.
  std::size_t lastCode() const { return lastCode_; }

 private:
  std::string_view text_;
  std::string_view statement_;
  std::size_t next_ = 0;
  std::size_t lastCode_ = std::string_view::npos;
  bool atEnd_ = false;
  bool hasBrackets_ = true;  // whether a "]" may still come
};

/// The offset behind the literal or bracketed name that begins at `offset`; `offset` itself if none
/// begins there. A literal without an end reaches to the end of the text, while a bracket without
/// an end is a character like others, and clears `hasBrackets`.
std::size_t skipLiteral(std::string_view text, std::size_t offset, bool& hasBrackets);

}  // namespace tamrikon
