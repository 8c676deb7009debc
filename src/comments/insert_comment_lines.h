// Writes a comment into the source.
#pragma once

#include <string>
#include <string_view>

#include "comments/comment_lines.h"
#include "ide/ide.h"

namespace tamrikon {

/// Puts a marker line and `lines`, each behind a quote, directly above the physical line
/// `codeLocation`, indented as that line is, and sets the caret behind the quote of the first of
/// them. A line that would make a second marker gets a blank behind its quote. A comment that is
/// there already stays. Throws IdeError; when moving the caret fails, the comment stands.
void insertCommentLines(CodeModule& module, int codeLocation, const CommentLines& lines);

/// The leading blanks of a source line; none for a line that isn't there.
std::string indentOfLine(const CodeModule& module, int line);

/// What insertCommentLines() writes: lines divided by CR, with none behind the last.
std::string commentText(std::string_view indent, const CommentLines& lines);

/// Shows the comment that begins on `line`, with the caret behind the first quote below it.
void showCommentLines(const CodeModule& module, int line, std::string_view indent);

}  // namespace tamrikon
