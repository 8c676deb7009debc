// Makes a comment from the fields of its editor.
#pragma once

#include <string>
#include <string_view>

#include "comments/comment_lines.h"
#include "editor/comment_fields.h"
#include "settings/project_settings.h"

namespace tamrikon {

/// Body lines with all tags in a fixed order, wrapped if the settings say so. Blank fields have no
/// tag.
CommentLines composeComment(const CommentFields& fields, const ProjectSettings& settings);

/// Adds the lines of a text; none for an empty one. With autoInsertEOL, each line but the last
/// ends in "$EOL$".
void addCommentLines(std::string_view text, CommentLines& lines, const ProjectSettings& settings);

/// The comment as it stands in the source, lines divided by CR LF.
std::string CollectionToCommentString(const CommentLines& lines);

}  // namespace tamrikon
