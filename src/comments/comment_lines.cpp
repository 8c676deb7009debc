#include "comments/comment_lines.h"

#include <algorithm>

#include "base/text.h"

namespace tamrikon {

Comment::Comment(const CommentLines& lines) {
  const auto copy = std::make_shared<const CommentLines>(lines);
  lines_.assign(copy->begin(), copy->end());
  memory_ = copy;
}

void Comment::push_back(std::string_view line) {
  struct Added {
    std::shared_ptr<const void> others;
    std::string line;
  };
  const auto added = std::make_shared<const Added>(Added{std::move(memory_), std::string(line)});
  lines_.push_back(added->line);
  memory_ = added;
}

bool Comment::contains(std::string_view part) const {
  return std::any_of(lines_.begin(), lines_.end(), [&](std::string_view line) {
    return line.find(part) != std::string_view::npos;
  });
}

int Comment::lineWith(std::string_view part) const {
  const auto found = std::find_if(lines_.begin(), lines_.end(), [&](std::string_view line) {
    return line.find(part) != std::string_view::npos;
  });
  if (firstLine == 0 || found == lines_.end()) return 0;
  return firstLine + static_cast<int>(found - lines_.begin());
}

CommentList stripCommentQuotes(const Comment& rawLines) {
  std::vector<std::string_view> body;
  body.reserve(rawLines.size());
  for (std::size_t n = 0; n < rawLines.size(); ++n) {
    std::string_view line = trim(rawLines[n]);
    if (line.starts_with('\'')) line.remove_prefix(1);
    body.push_back(line);
  }
  auto comment = std::make_shared<Comment>(rawLines.memory(), std::move(body));
  comment->firstLine = rawLines.firstLine;
  return comment;
}

}  // namespace tamrikon
