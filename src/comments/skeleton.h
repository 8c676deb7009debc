// Makes the comment that a member without one gets: its arguments, types and defaults filled in,
// and the tags that the settings ask for. The results are body lines, without marker and quotes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "comments/comment_lines.h"
#include "settings/project_settings.h"
#include "vb/proc_definition.h"

namespace tamrikon {

/// Whether an argument's line says if the argument may be left out: those of methods and events
/// do, those of properties don't.
enum class ArgumentStyle { withPresence, plain };

/// The skeleton of a method, event or property. The first line is `description` as it is, also if
/// it holds line breaks, or empty if the settings don't want it. `definition` has been parsed.
CommentLines procedureSkeleton(std::string_view description, const ProcDefinition& definition,
                               ArgumentStyle style, const ProjectSettings& settings);

/// The skeleton of a variable or constant.
CommentLines variableSkeleton();

/// The skeleton of a module.
CommentLines moduleSkeleton(std::string_view description, const ProjectSettings& settings);

/// What the last argument of a property adds to a comment that was made for fewer arguments.
struct LastArgument {
  std::size_t count = 0;            // arguments of the declaration
  std::optional<std::string> line;  // unless the settings want none or there is no argument
};
LastArgument lastArgument(const ProcDefinition& definition, const ProjectSettings& settings);

/// "@param ...", of one argument.
std::string argumentLine(const argument& arg, ArgumentStyle style);

/// A tag word, blanks up to 14 characters but at least one, and the text.
std::string tagLine(std::string_view tag, std::string_view text = {});

/// Whether a type isn't one of the intrinsic ones, case included.
bool isObjectType(std::string_view name);

}  // namespace tamrikon
