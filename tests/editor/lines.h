// Comments as tests write them, and settings for their layout.
#pragma once

#include <string>

#include "base/text.h"
#include "comments/comment_lines.h"
#include "settings/project_settings.h"

namespace tamrikon::test {

/// "one|two" is two lines.
inline CommentLines lines(std::string_view text) {
  const auto pieces = split(text, '|');
  return {pieces.begin(), pieces.end()};
}

inline ProjectSettings layoutOf(int wordWrapLength, int autoInsertEOL) {
  ProjectSettings settings;
  settings.wordWrapLength = static_cast<std::int16_t>(wordWrapLength);
  settings.autoInsertEOL = static_cast<std::int16_t>(autoInsertEOL);
  settings.userName[1] = "a20LetterTagName12";
  return settings;
}

}  // namespace tamrikon::test
