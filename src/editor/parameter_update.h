// Brings the parameters and the return value of a comment up to date with the declaration, keeping
// what the user wrote.
#pragma once

#include <string>
#include <string_view>

#include "editor/comment_fields.h"

namespace tamrikon {

/// The parameters become those of `generated`, in their order. A parameter that the declaration
/// doesn't have goes, with its settings, and so does the text of a return value that it doesn't
/// have. Returns what goes so, headers left out, as it would stand in the fields of a comment.
CommentFields updateParameters(CommentFields& fields, const GeneratedFields& generated);

/// Puts `generated` in place of the header of `current`: "Required. " or "Optional. " unless it
/// `isReturn`, a type and a full stop, and the default value of an optional parameter. Without
/// such a header `generated` comes in front of the whole text.
std::string mergeHeader(std::string_view current, std::string_view generated, bool isReturn);

/// Whether a generated header can have `word` as its type.
bool isTypeWord(std::string_view word);

}  // namespace tamrikon
