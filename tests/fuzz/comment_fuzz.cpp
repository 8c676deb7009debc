// A comment, taken apart, laid out anew and taken apart again.
#include "base/text.h"
#include "comments/comment_parser.h"
#include "editor/comment_fields.h"
#include "editor/compose_comment.h"
#include "fuzz/fuzz_target.h"

namespace {

/// What the editor writes over a comment that it wrote.
tamrikon::CommentLines rewritten(tamrikon::CommentLines lines,
                                 const tamrikon::ProjectSettings& settings) {
  for (std::string& line : lines) line.insert(0, "'");
  const tamrikon::CommentList body = tamrikon::stripCommentQuotes(std::move(lines));
  return composeComment(parseIntoFields(*body, settings), settings);
}

}  // namespace

void fuzz(const std::string& data) {
  using namespace tamrikon;
  if (data.empty()) return;
  ProjectSettings settings;
  settings.wordWrapLength = static_cast<std::int16_t>(data[0]);
  settings.autoInsertEOL = static_cast<std::int16_t>(data[0] & 1);
  settings.indentMode = static_cast<std::int16_t>(data[0] >> 1 & 1);
  CommentLines raw;
  for (const std::string_view line : split(std::string_view(data).substr(1), '\n')) {
    raw.emplace_back(line);
  }
  const CommentList comment = stripCommentQuotes(std::move(raw));
  CommentParser parser(settings);
  parser.setComment(comment);
  parser.getSettingsList();
  parser.getParamList();
  const CommentLines once = composeComment(parseIntoFields(*comment, settings), settings);
  CommentLines written = rewritten(once, settings);
  // A layout without wrapping and joining settles; a tag without its first word takes a line of
  // what follows it each time.
  if (settings.wordWrapLength > 0 || settings.autoInsertEOL != 0) return;
  for (std::size_t rounds = 3 * once.size() + 3; rounds > 0; --rounds) {
    CommentLines next = rewritten(written, settings);
    if (next == written) return;
    written = std::move(next);
  }
  test::demand(false, "a comment that is written again and again changes each time");
}
