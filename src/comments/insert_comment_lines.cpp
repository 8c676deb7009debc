#include "comments/insert_comment_lines.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "base/text.h"
#include "vb/vb_text.h"

namespace tamrikon {
namespace {

/// Divides at the first line break (CR LF, CR or LF). False if there is none.
bool cutLine(std::string_view& text, std::string_view& line) {
  const std::size_t end = text.find_first_of("\r\n");
  line = text.substr(0, end);
  if (end == std::string_view::npos) return false;
  text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
  return true;
}

}  // namespace

void insertCommentLines(CodeModule& module, int codeLocation, const CommentLines& lines) {
  const std::string indent = indentOfLine(module, codeLocation);
  module.InsertLines(codeLocation, commentText(indent, lines));
  showCommentLines(module, codeLocation, indent);
}

std::string indentOfLine(const CodeModule& module, int line) {
  if (line > module.CountOfLines()) return {};
  std::string indent = module.Lines(line, 1);
  indent.resize(indent.size() - trimLeading(indent).size());
  return indent;
}

std::string commentText(std::string_view indent, const CommentLines& lines) {
  std::string text(indent);
  text += "'**";
  for (const std::string& item : lines) {
    // A description can hold line breaks: without a quote of their own, its lines would be code.
    std::string_view rest = item;
    std::string_view line;
    bool more = true;
    while (more) {
      more = cutLine(rest, line);
      text += '\r';
      text += indent;
      text += '\'';
      // As a marker, the line would hide what stands above it.
      if (line.starts_with("**")) text += ' ';
      text += line;
    }
  }
  // The declaration below must not become a continuation of the comment.
  if (isContinued(text)) text += ' ';
  return text;
}

void showCommentLines(const CodeModule& module, int line, std::string_view indent) {
  module.CodePane().setTopLine(line);
  const int column = static_cast<int>(indent.size()) + 2;
  module.CodePane().SetSelection({line + 1, column, line + 1, column});
}

}  // namespace tamrikon
