// Makes a comment from the fields of its editor.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "comments/comment_lines.h"
#include "editor/comment_fields.h"
#include "settings/project_settings.h"

namespace tamrikon {

/// One text of a comment, as its editor holds it and as the comment has it.
struct FieldItem {
  std::string tag;    // such as "@rem"; empty for the description
  std::string value;  // of the field, or of the item of its list
  std::string text;   // behind the tag

  /// Whether both stand for the same text of the same field.
  bool operator==(const FieldItem& other) const { return tag == other.tag && value == other.value; }
};

/// All that a comment has, in the fixed order of its tags. Blank fields have none.
std::vector<FieldItem> fieldItems(const CommentFields& fields, const ProjectSettings& settings);

/// The body lines of one text, wrapped if the settings say so.
CommentLines composeItem(const FieldItem& item, const ProjectSettings& settings);

/// The body lines of all texts.
CommentLines composeComment(const CommentFields& fields, const ProjectSettings& settings);

/// Adds the lines of a text; none for an empty one. With autoInsertEOL, each line but the last
/// ends in "$EOL$".
void addCommentLines(std::string_view text, CommentLines& lines, const ProjectSettings& settings);

/// The comment as it stands in the source, lines divided by CR LF.
std::string CollectionToCommentString(const CommentLines& lines);

}  // namespace tamrikon
