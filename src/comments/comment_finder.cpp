#include "comments/comment_finder.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "base/text.h"

namespace tamrikon {
namespace {

bool isMarker(std::string_view trimmedLine) {
  return trimmedLine.starts_with("'**");
}

}  // namespace

CommentSearch findComment(const ModuleLines& module, int codeLocation) {
  if (codeLocation < 2) return {CommentSearch::End::noLineAbove, {}};
  int line = std::min(codeLocation - 1, module.count());
  while (line > 0 && trim(module.line(line)).empty()) --line;
  for (const int last = line; line > 0; --line) {
    const std::string_view text = trim(module.line(line));
    if (isMarker(text)) return {CommentSearch::End::foundMarker, {line, last}};
    if (!text.starts_with('\'')) break;
  }
  return {};
}

std::optional<LineRange> getCommentRange(const ModuleLines& module, int codeLocation) {
  const CommentSearch search = findComment(module, codeLocation);
  if (search.end != CommentSearch::End::foundMarker) return std::nullopt;
  return search.range;
}

std::optional<LineRange> getModuleCommentRange(const ModuleLines& module) {
  int first = 1;
  while (first <= module.count() && trim(module.line(first)).empty()) ++first;
  if (!isMarker(trim(module.line(first)))) return std::nullopt;
  int last = first;
  while (trim(module.line(last + 1)).starts_with('\'')) ++last;
  return LineRange{first, last};
}

Comment commentBody(const ModuleLines& module, const LineRange& range) {
  std::vector<std::string_view> body;
  body.reserve(static_cast<std::size_t>(std::max(0, range.last - range.first)));
  for (int line = range.first + 1; line <= range.last; ++line) body.push_back(module.line(line));
  Comment comment(module.memory(), std::move(body));
  comment.firstLine = range.first + 1;
  return comment;
}

}  // namespace tamrikon
