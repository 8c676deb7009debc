#include "editor/edited_comment.h"

#include <utility>

#include "comments/comment_finder.h"
#include "editor/replace_comment.h"
#include "model/wrapper_comments.h"
#include "model/wrappers.h"

namespace tamrikon {
namespace {

/// The wrapper of the same member over another snapshot of its module.
WrapperRef wrapperOver(ModuleSource& source, const Wrapper& wrapper) {
  if (wrapper.kind() == WrapperKind::module) return std::make_shared<Smodule>(source);
  Member& member = static_cast<const MemberWrapper&>(wrapper).member();
  switch (wrapper.kind()) {
    case WrapperKind::method: return std::make_shared<Smethod>(source, member);
    case WrapperKind::event: return std::make_shared<Sevent>(source, member);
    case WrapperKind::propGet: return std::make_shared<SpropGet>(source, member);
    case WrapperKind::propLet: return std::make_shared<SpropLet>(source, member);
    case WrapperKind::propSet: return std::make_shared<SpropSet>(source, member);
    case WrapperKind::variable: return std::make_shared<Svariable>(source, member);
    case WrapperKind::constant: return std::make_shared<Sconstant>(source, member);
    case WrapperKind::module: break;
  }
  return nullptr;
}

/// The words of a marker line, which begins with a quote and two stars.
std::string_view headlineOf(std::string_view marker) {
  constexpr std::string_view kOrnaments = "'*-=_#~+ \t";
  const std::size_t first = marker.find_first_not_of(kOrnaments);
  if (first == std::string_view::npos) return {};
  return marker.substr(first, marker.find_last_not_of(kOrnaments) - first + 1);
}

}  // namespace

EditedComment::EditedComment(CodeModule& module, int line, const ProjectSettings& settings)
    : source_(std::make_unique<ModuleSource>(module)), member_(getWrapperAtLine(*source_, line)) {
  generatedLines_ = member_->generateComment(settings);
  CommentList raw;
  if (isModule()) {
    raw = WrapperComments::getModuleComment(*source_);
    member_->hadComment = !raw->empty();
  } else {
    // Looking at a comment must leave the member's help id alone.
    const ProjectSettings withoutContextId;
    raw = WrapperComments(withoutContextId).getComment(*member_);
  }
  hadComment_ = member_->hadComment;
  commentLines_ = hadComment_ ? stripCommentQuotes(*raw)->lines() : generatedLines_;
  if (const auto range = hadComment_ ? findRange() : std::nullopt) {
    headline_ = headlineOf(source_->lines().line(range->first));
  }
}

std::optional<LineRange> EditedComment::findRange() const {
  return isModule() ? getModuleCommentRange(source_->lines())
                    : getCommentRange(source_->lines(), member_->CodeLocation());
}

void EditedComment::replace(CommentLines lines, const EditGrouping& group) {
  refresh();
  const int codeLocation = member_->CodeLocation();
  std::optional<LineRange> old;
  if (hadComment_) old = findRange();
  const auto edit = [&] { replaceComment(member_->cmo(), old, codeLocation, lines); };
  if (group) {
    group(member_->cmo(), edit);
  } else {
    edit();
  }
  hadComment_ = true;
  headline_.clear();
  commentLines_ = std::move(lines);
  tryStep([this] { refresh(); });
}

void EditedComment::refresh() {
  auto source = std::make_unique<ModuleSource>(member_->cmo());
  member_ = wrapperOver(*source, *member_);
  source_ = std::move(source);
}

}  // namespace tamrikon
