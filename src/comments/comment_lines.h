// The lines of one comment, as they travel from the source to the pages.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tamrikon {

/// Raw lines are as they stand in the source; body lines have lost indentation and quote.
using CommentLines = std::vector<std::string>;

/// The same as views, for the model, which holds the comments of whole projects: most of them are
/// nowhere but in the sources.
class Comment {
 public:
  Comment() = default;

  /// Copies the lines.
  Comment(const CommentLines& lines);

  /// `memory` keeps alive what the lines are views of.
  Comment(std::shared_ptr<const void> memory, std::vector<std::string_view> lines)
      : memory_(std::move(memory)), lines_(std::move(lines)) {}

  /// Adds a copy of `line`.
  void push_back(std::string_view line);

  std::size_t size() const { return lines_.size(); }
  bool empty() const { return lines_.empty(); }
  std::string_view operator[](std::size_t n) const { return lines_[n]; }
  /// Whether a line contains `part`.
  bool contains(std::string_view part) const;
  CommentLines lines() const { return {lines_.begin(), lines_.end()}; }
  const std::shared_ptr<const void>& memory() const { return memory_; }

  /// The line of the module, from 1, of the first one that contains `part`; 0 if there is none or
  /// it isn't known where the comment stands.
  int lineWith(std::string_view part) const;

  /// On which line of its module, from 1, its first one stands; 0 if nobody wrote it.
  int firstLine = 0;

  /// Whether nobody wrote it: it was made of a declaration and the IDE's description.
  bool isGenerated = false;

  /// Whether it may be that of several members.
  bool isShared = false;

 private:
  std::shared_ptr<const void> memory_;
  std::vector<std::string_view> lines_;
};

/// A comment that several members can share: equal pointers, not equal lines, say that they do.
using CommentList = std::shared_ptr<Comment>;

/// The body lines of raw lines, as a new comment: each line trimmed, then one leading quote
/// removed. Blanks behind the quote stay.
CommentList stripCommentQuotes(const Comment& rawLines);

}  // namespace tamrikon
