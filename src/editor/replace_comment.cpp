#include "editor/replace_comment.h"

#include <algorithm>
#include <string>

#include "comments/insert_comment_lines.h"

namespace tamrikon {
namespace {

struct Lines {
  int first;
  int count;
};

bool tryDelete(CodeModule& module, const Lines& lines) {
  return tryStep([&] { module.DeleteLines(lines.first, lines.count); });
}

}  // namespace

void replaceComment(CodeModule& module, const std::optional<LineRange>& old, int codeLocation,
                    const CommentLines& lines) {
  // A module's comment stands at its own place, a member's above it.
  const bool isBelow = old && old->first >= codeLocation;
  const bool isAtPlace = old && old->first == codeLocation;
  const std::string indent = indentOfLine(module, isAtPlace ? old->last + 1 : codeLocation);
  const std::string text = commentText(indent, lines);
  const int added = static_cast<int>(std::count(text.begin(), text.end(), '\r')) + 1;

  module.InsertLines(codeLocation, text);
  int line = codeLocation;
  if (old) {
    const Lines oldLines{old->first + (isBelow ? added : 0), old->last - old->first + 1};
    if (!tryDelete(module, oldLines)) {
      tryDelete(module, {codeLocation, added});
      throw IdeError("the old comment can't be replaced");
    }
    if (!isBelow) line -= oldLines.count;
  }
  // Where the caret can't be set, the comment stands all the same.
  tryStep([&] { showCommentLines(module, line, indent); });
}

}  // namespace tamrikon
