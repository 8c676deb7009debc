#include "model/wrapper_comments.h"

#include <utility>

#include "comments/comment_finder.h"

namespace tamrikon {

CommentList WrapperComments::getComment(Wrapper& wrapper) {
  auto comment = std::make_shared<Comment>();
  tryStep([&] {
    const ModuleLines& lines = wrapper.source().lines();
    const CommentSearch search = findComment(lines, wrapper.CodeLocation());
    if (search.end == CommentSearch::End::withoutMarker) return;
    if (search.end == CommentSearch::End::foundMarker) *comment = commentBody(lines, search.range);
    wrapper.hadComment = !comment->empty();
  });
  takeHelpId(wrapper);
  return comment;
}

CommentList WrapperComments::getModuleComment(const ModuleSource& source) {
  auto comment = std::make_shared<Comment>();
  const auto range = getModuleCommentRange(source.lines());
  if (range) *comment = commentBody(source.lines(), *range);
  return comment;
}

void WrapperComments::takeHelpId(Wrapper& wrapper) {
  wrapper.helpID = nextHelpId++;
  if (settings_.comContextID) tryStep([&] { wrapper.setIdeHelpContextID(wrapper.helpID); });
}

bool WrapperComments::prepareComment(Wrapper& wrapper) const {
  if (wrapper.hadComment) {
    wrapper.comment = stripCommentQuotes(*wrapper.comment);
    return true;
  }
  if (!settings_.comNonCommented) return false;
  return tryStep(
      [&] { wrapper.comment = std::make_shared<Comment>(wrapper.generateComment(settings_)); });
}

}  // namespace tamrikon
