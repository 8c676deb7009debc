// The comment editor over each line of a module: nothing but comments changes, what was written is
// found again, and undo brings the source back.
#include <algorithm>
#include <utility>

#include "base/text.h"
#include "editor/compose_comment.h"
#include "editor/edited_comment.h"
#include "editor/field_origins.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/layout.h"
#include "fuzz/memory_files.h"
#include "host/host_ide.h"
#include "source/edit_group.h"

namespace {

std::vector<std::string> codeOf(const tamrikon::CodeModule& module) {
  std::vector<std::string> code;
  for (int line = 1; line <= module.CountOfLines(); ++line) {
    const std::string text = module.Lines(line, 1);
    const std::string_view trimmed = tamrikon::trim(text);
    if (!trimmed.empty() && trimmed.front() != '\'') code.push_back(text);
  }
  return code;
}

}  // namespace

void fuzz(const std::string& data) {
  using namespace tamrikon;
  if (data.empty()) return;
  const ProjectSettings settings = test::layoutFrom(data[0]);
  test::MemoryFiles disk;
  disk.files = {{"/p/P.vbp", "Type=Exe\nClass=C; C.cls\n"}, {"/p/C.cls", data.substr(1)}};
  std::string why;
  const auto ide = HostIde::open(
      disk, "/p/P.vbp", nullptr, [](const Diagnostic&) {}, why);
  auto& module =
      static_cast<HostModule&>(*ide->ActiveVBProject().VBComponents().Item(1).CodeModule());
  const std::string source = module.Lines(1, module.CountOfLines());
  const std::vector<std::string> code = codeOf(module);
  const EditGrouping group = [](CodeModule& edited, const std::function<void()>& edit) {
    const EditGroup step(static_cast<HostModule&>(edited));
    edit();
  };
  int edits = 0;
  const int count = std::min(module.CountOfLines(), 40);
  for (int line = 1; line <= count; ++line, ++edits) {
    EditedComment edited(module, line, settings);
    const CommentFields fields = parseIntoFields(edited.commentLines(), settings);
    if (edited.hadComment()) {
      const FieldOrigins origins(edited.commentLines(), settings);
      test::demand(origins.compose(fields, settings, false) == edited.commentLines(),
                   "an unchanged comment doesn't stay");
    }
    edited.replace(composeComment(fields, settings), group);
    test::demand(codeOf(module) == code, "a comment isn't all that changes");
    CommentLines lines = edited.commentLines();
    // A comment without lines counts as none, and a module's takes in comment lines below it.
    if (lines.empty() || edited.isModule()) continue;
    const EditedComment written(module, edited.member().CodeLocation(), settings);
    for (std::string& body : lines) body.insert(0, body.starts_with("**") ? "' " : "'");
    test::demand(written.commentLines() == stripCommentQuotes(lines)->lines(),
                 "what was written isn't found");
  }
  while (edits-- > 0) module.undo();
  test::demand(module.Lines(1, module.CountOfLines()) == source, "undo doesn't bring it back");
}
