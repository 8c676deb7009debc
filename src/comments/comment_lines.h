// The lines of one comment, as they travel from the source to the pages.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tamrikon {

/// Raw lines are as they stand in the source; body lines have lost indentation and quote.
using CommentLines = std::vector<std::string>;

/// Such lines in one text: the model holds those of whole projects.
class Comment {
 public:
  Comment() = default;
  Comment(const CommentLines& lines) {
    for (const std::string& line : lines) push_back(line);
  }

  void push_back(std::string_view line) {
    text_ += line;
    ends_.push_back(static_cast<std::uint32_t>(text_.size()));
  }
  /// Makes room for so many lines and bytes.
  void reserve(std::size_t lines, std::size_t bytes) {
    ends_.reserve(lines);
    text_.reserve(bytes);
  }

  std::size_t size() const { return ends_.size(); }
  bool empty() const { return ends_.empty(); }
  /// All lines, with nothing between them.
  std::string_view text() const { return text_; }
  std::string_view operator[](std::size_t n) const {
    const std::size_t start = n == 0 ? 0 : ends_[n - 1];
    return std::string_view(text_).substr(start, ends_[n] - start);
  }

  CommentLines lines() const;

 private:
  std::string text_;
  std::vector<std::uint32_t> ends_;  // of the lines in text_
};

/// A comment that several members can share: equal pointers, not equal lines, say that they do.
using CommentList = std::shared_ptr<Comment>;

/// The body lines of raw lines, as a new comment: each line trimmed, then one leading quote
/// removed. Blanks behind the quote stay.
CommentList stripCommentQuotes(const Comment& rawLines);

}  // namespace tamrikon
