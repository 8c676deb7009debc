// Writes a comment into the source.
#pragma once

#include "comments/comment_lines.h"
#include "ide/ide.h"

namespace tamrikon {

/// Puts a marker line and `lines`, each behind a quote, directly above the physical line
/// `codeLocation`, indented as that line is, and sets the caret behind the quote of the first of
/// them. A comment that is there already stays. Throws IdeError; when moving the caret fails, the
/// comment stands.
void insertCommentLines(CodeModule& module, int codeLocation, const CommentLines& lines);

}  // namespace tamrikon
