// Puts a comment in the place of another one.
#pragma once

#include <optional>

#include "comments/comment_finder.h"
#include "comments/comment_lines.h"
#include "ide/ide.h"

namespace tamrikon {

/// Writes `lines` as a comment directly above the physical line `codeLocation`, takes the lines of
/// `old` out if there are any, and sets the caret into the new comment. Throws IdeError, with the
/// module as it was. Should the module refuse even to go back, it holds both comments: there is no
/// moment at which it holds none.
void replaceComment(CodeModule& module, const std::optional<LineRange>& old, int codeLocation,
                    const CommentLines& lines);

}  // namespace tamrikon
