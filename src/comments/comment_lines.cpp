#include "comments/comment_lines.h"

#include <algorithm>
#include <utility>

namespace tamrikon {

CommentList stripCommentQuotes(CommentLines rawLines) {
  for (std::string& line : rawLines) {  // in place, as whole projects pass through here
    line.erase(line.find_last_not_of(' ') + 1);
    const std::size_t first = std::min(line.find_first_not_of(' '), line.size());
    line.erase(0, first + (line.compare(first, 1, "'") == 0 ? 1 : 0));
  }
  return std::make_shared<CommentLines>(std::move(rawLines));
}

}  // namespace tamrikon
