#include "comments/comment_lines.h"

#include "base/text.h"

namespace tamrikon {

CommentLines Comment::lines() const {
  CommentLines lines;
  lines.reserve(size());
  for (std::size_t n = 0; n < size(); ++n) lines.emplace_back((*this)[n]);
  return lines;
}

CommentList stripCommentQuotes(const Comment& rawLines) {
  auto body = std::make_shared<Comment>();
  body->reserve(rawLines.size(), rawLines.text().size());
  for (std::size_t n = 0; n < rawLines.size(); ++n) {
    std::string_view line = trim(rawLines[n]);
    if (line.starts_with('\'')) line.remove_prefix(1);
    body->push_back(line);
  }
  return body;
}

}  // namespace tamrikon
