// A comment as the fields of its editor, without a window.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "comments/comment_lines.h"
#include "editor/field_text.h"
#include "settings/project_settings.h"

namespace tamrikon {

/// Lines within a text are divided by CR LF.
struct CommentFields {
  std::string description;
  std::string remarks;
  std::string returns;
  std::string sameAs;
  std::string author;
  std::string version;
  std::string revision;
  std::array<std::string, ProjectSettings::kUserTags> user;
  std::string includeSource;  // "yes" or empty, once the editor has set it

  FieldList parameters;  // see parameterItem()

  /// See settingItem(). Each list that isn't empty belongs to one parameter.
  std::array<FieldList, 3> settingsLists;

  FieldList seeList;  // see linkItem()
  FieldList exampleList;
};

/// Takes body lines apart. Blanks in front of a line stay, whatever the settings say of indents.
CommentFields parseIntoFields(const Comment& comment, const ProjectSettings& settings);

/// The lines of the description, if there are any, then those of each tag with what continues it.
std::vector<CommentLines> commentBlocks(const CommentLines& body, const ProjectSettings& settings);

/// What an update takes over from a generated comment.
struct GeneratedFields {
  FieldList parameters;
  std::string returns;
};
GeneratedFields parseGeneratedFields(const CommentLines& generatedLines,
                                     const ProjectSettings& settings);

}  // namespace tamrikon
