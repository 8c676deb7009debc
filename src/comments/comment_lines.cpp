#include "comments/comment_lines.h"

#include <string_view>

#include "base/text.h"

namespace tamrikon {

CommentList stripCommentQuotes(const CommentLines& rawLines) {
  auto body = std::make_shared<CommentLines>();
  body->reserve(rawLines.size());
  for (const std::string& rawLine : rawLines) {
    std::string_view line = trim(rawLine);
    if (line.starts_with('\'')) line.remove_prefix(1);
    body->emplace_back(line);
  }
  return body;
}

}  // namespace tamrikon
