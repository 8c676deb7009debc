// The comment in the source that its editor works on.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "comments/comment_finder.h"
#include "comments/comment_lines.h"
#include "ide/ide.h"
#include "model/wrapper.h"
#include "settings/project_settings.h"

namespace tamrikon {

/// Runs an edit of a module, so that all of it can be undone in one step.
using EditGrouping = std::function<void(CodeModule&, const std::function<void()>& edit)>;

class EditedComment {
 public:
  /// The comment of the member that `line` belongs to, or of the module. Throws IdeError.
  /// `settings` must outlive this object.
  EditedComment(CodeModule& module, int line, const ProjectSettings& settings);

  const Wrapper& member() const { return *member_; }
  bool isModule() const { return member_->kind() == WrapperKind::module; }

  /// Whether the source holds a comment.
  bool hadComment() const { return hadComment_; }

  /// Body lines: those of the source, or the generated ones if there are none.
  const CommentLines& commentLines() const { return commentLines_; }

  /// What stands on the comment's first line behind its mark, without the stars of a banner. It
  /// belongs to no field, and replace() drops it.
  const std::string& headline() const { return headline_; }
  const CommentLines& generatedLines() const { return generatedLines_; }

  /// Puts `lines` into the source, in place of the comment that is there. Throws IdeError, and the
  /// comment is as it was.
  void replace(CommentLines lines, const EditGrouping& group);

 private:
  void refresh();
  std::optional<LineRange> findRange() const;

  std::unique_ptr<ModuleSource> source_;
  WrapperRef member_;
  bool hadComment_ = false;
  CommentLines commentLines_;
  std::string headline_;
  CommentLines generatedLines_;
};

}  // namespace tamrikon
