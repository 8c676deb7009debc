// Lines of text, as tests write them.
#pragma once

#include "base/text.h"
#include "comments/comment_lines.h"

namespace tamrikon::test {

/// "one|two" is two lines.
inline CommentLines lines(std::string_view text) {
  const auto pieces = split(text, '|');
  return {pieces.begin(), pieces.end()};
}

}  // namespace tamrikon::test
