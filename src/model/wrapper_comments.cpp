#include "model/wrapper_comments.h"

#include <stdexcept>
#include <utility>

namespace tamrikon {
namespace {

constexpr std::size_t kMaxCopied = std::size_t{256} << 20;

std::size_t sizeOf(const ModuleLines& lines, const LineRange& range) {
  std::size_t size = 0;
  for (int line = range.first; line <= range.last; ++line) {
    size += sizeof(std::string) + lines.line(line).size();
  }
  return size;
}

}  // namespace

/// The names of a statement share what stands above it, which may be long.
const CommentSearch& WrapperComments::searchAbove(const ModuleLines& lines, int codeLocation) {
  if (searchedLines_ != &lines || searchedLocation_ != codeLocation) {
    search_ = findComment(lines, codeLocation);
    searchedLines_ = &lines;
    searchedLocation_ = codeLocation;
    const bool isFound = search_.end == CommentSearch::End::foundMarker;
    searchedSize_ = isFound ? sizeOf(lines, search_.range) : 0;
  } else {
    copied_ += searchedSize_;
    if (copied_ > kMaxCopied) {
      throw std::length_error("A comment that is too long stands above too many names.");
    }
  }
  return search_;
}

CommentList WrapperComments::getComment(Wrapper& wrapper) {
  auto comment = std::make_shared<Comment>();
  tryStep([&] {
    const ModuleLines& lines = wrapper.source().lines();
    const CommentSearch& search = searchAbove(lines, wrapper.CodeLocation());
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
  if (!settings_.comContextID) return;
  tryStep([&] { wrapper.setIdeHelpContextID(wrapper.helpID, true); });
}

bool WrapperComments::prepareComment(Wrapper& wrapper) const {
  if (wrapper.hadComment) {
    wrapper.comment = stripCommentQuotes(*wrapper.comment);
    return true;
  }
  if (!settings_.comNonCommented) return false;
  return tryStep([&] {
    wrapper.comment = std::make_shared<Comment>(wrapper.generateComment(settings_));
    wrapper.comment->isGenerated = true;
  });
}

}  // namespace tamrikon
