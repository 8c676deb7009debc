// A comment, taken apart, laid out anew and taken apart again.
#include "base/text.h"
#include "comments/parsed_comment.h"
#include "editor/comment_fields.h"
#include "editor/compose_comment.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/layout.h"
#include "platform/text_decoding.h"

namespace {

/// What the editor writes over a comment that it wrote.
tamrikon::CommentLines rewritten(tamrikon::CommentLines lines,
                                 const tamrikon::ProjectSettings& settings) {
  for (std::string& line : lines) line.insert(0, "'");
  const tamrikon::CommentList body = tamrikon::stripCommentQuotes(lines);
  return composeComment(parseIntoFields(*body, settings), settings);
}

}  // namespace

void fuzz(const std::string& data) {
  using namespace tamrikon;
  if (data.empty()) return;
  ProjectSettings settings = test::layoutFrom(data[0]);
  settings.indentMode = static_cast<std::int16_t>(data[0] >> 1 & 1);
  CommentLines raw;
  // No line of a source holds a CR.
  for (const std::string_view line : splitLines(std::string_view(data).substr(1))) {
    raw.emplace_back(line);
  }
  const CommentList comment = stripCommentQuotes(raw);
  const TagWords words(settings.userName);
  const ParsedComment parsed = parseComment(comment, words, indentsFor(settings));
  parsed.getSettingsList();
  parsed.getParamList();
  const CommentLines once = composeComment(parseIntoFields(*comment, settings), settings);
  CommentLines written = rewritten(once, settings);
  // Without wrapping and joining it settles, as it never grows; a run of tabs loses one each time.
  if (settings.wordWrapLength > 0 || settings.autoInsertEOL != 0) return;
  for (int round = 0; round < 20; ++round) {
    CommentLines next = rewritten(written, settings);
    if (next == written) return;
    test::demand(join(next, "\n").size() <= join(written, "\n").size(),
                 "a comment grows each time that it is written");
    written = std::move(next);
  }
}
