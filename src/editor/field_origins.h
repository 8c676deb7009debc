// Where the fields of a comment stand in the source: what nobody changes keeps its lines, and what
// is in no field is known before it goes.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "comments/comment_lines.h"
#include "editor/compose_comment.h"
#include "settings/project_settings.h"

namespace tamrikon {

class FieldOrigins {
 public:
  /// Of a comment that doesn't stand in the source yet.
  FieldOrigins() = default;

  /// Of the comment with these body lines, read by the same settings as its fields.
  FieldOrigins(const CommentLines& body, const ProjectSettings& settings);

  /// What `fields` make of the comment: its own lines if they say the same. Otherwise the fields
  /// are in their fixed order, and only those that have changed are laid out anew, or, with
  /// `laysOutAll`, all whose lines can be divided.
  CommentLines compose(const CommentFields& fields, const ProjectSettings& settings,
                       bool laysOutAll) const;

  /// The same fields with the lines that compose() makes of them, as those that stand in the source
  /// then.
  FieldOrigins written(const CommentFields& fields, const ProjectSettings& settings,
                       bool laysOutAll) const;

  /// The lines that hold what is in no field. Any comment but the same one loses them.
  const CommentLines& unread() const { return unread_; }

 private:
  struct Part {
    FieldItem item;
    CommentLines lines;
  };

  std::vector<Part> partsOf(const CommentFields& fields, const ProjectSettings& settings,
                            bool laysOutAll) const;
  void addUnread(const CommentLines& lines, std::size_t first);

  CommentLines body_;
  std::vector<FieldItem> items_;                                        // of the whole comment
  std::unordered_map<std::string, std::vector<CommentLines>> origins_;  // by key of an item
  CommentLines unread_;
};

}  // namespace tamrikon
