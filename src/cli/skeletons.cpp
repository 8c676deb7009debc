#include "cli/skeletons.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "base/text.h"
#include "comments/insert_comment_lines.h"
#include "host/host_module.h"

namespace tamrikon {
namespace {

/// What was done to a file, which several modules can stand over.
struct FileEdits {
  int lastLine = 0;  // where the last skeleton of a member went, in the file as it was
  int addedLines = 0;
  bool hasTop = false;  // the skeleton of a module was inserted
};

const Source* fileOf(const Skeleton& skeleton) {
  return &static_cast<const HostModule&>(skeleton.source->module()).source();
}

/// Each line without the blanks at its end, also those that line breaks divide within one.
CommentLines withoutBlanksAtEnds(const CommentLines& lines) {
  CommentLines result;
  for (const std::string& text : lines) {
    std::string kept;
    for (const char c : text) {
      if (c == '\r' || c == '\n') kept.resize(trimTrailing(kept).size());
      kept += c;
    }
    result.emplace_back(trimTrailing(kept));
  }
  return result;
}

void insertAtTop(CodeModule& module, const CommentLines& comment) {
  const int countBefore = module.CountOfLines();
  const bool standsAboveComment = countBefore > 0 && trim(module.Lines(1, 1)).starts_with('\'');
  insertCommentLines(module, 1, comment);
  if (standsAboveComment) module.InsertLines(module.CountOfLines() - countBefore + 1, "");
}

}  // namespace

Skeleton skeletonOf(const Wrapper& wrapper, std::string name, const ProjectSettings& settings) {
  Skeleton skeleton;
  skeleton.name = std::move(name);
  skeleton.source = &wrapper.source();
  skeleton.isOfModule = wrapper.kind() == WrapperKind::module;
  // A declaration can begin on a line that continues another statement.
  skeleton.line = wrapper.source().lines().statementStartLine(wrapper.CodeLocation());
  skeleton.comment = withoutBlanksAtEnds(wrapper.generateComment(settings));
  // In a comment the IDE's description is read by a template, for which a "$" calls a macro.
  skeleton.comment.front() = doubleDollars(skeleton.comment.front());
  return skeleton;
}

std::vector<const Skeleton*> insertSkeletons(const std::vector<Skeleton>& skeletons,
                                             Repeats repeats) {
  std::vector<const Skeleton*> members;
  std::vector<const Skeleton*> modules;
  for (const Skeleton& skeleton : skeletons) {
    (skeleton.isOfModule ? modules : members).push_back(&skeleton);
  }
  // From the first line to the last: what moves down is then the lines alone that were there.
  std::stable_sort(members.begin(), members.end(),
                   [](const Skeleton* a, const Skeleton* b) { return a->line < b->line; });

  std::unordered_map<const Source*, FileEdits> files;
  std::vector<const Skeleton*> inserted;
  for (const Skeleton* skeleton : members) {
    FileEdits& edits = files[fileOf(*skeleton)];
    if (repeats == Repeats::leaveOut && edits.lastLine == skeleton->line) continue;
    CodeModule& module = skeleton->source->module();
    const int countBefore = module.CountOfLines();
    insertCommentLines(module, skeleton->line + edits.addedLines, skeleton->comment);
    edits.addedLines += module.CountOfLines() - countBefore;
    edits.lastLine = skeleton->line;
    inserted.push_back(skeleton);
  }
  for (const Skeleton* skeleton : modules) {
    FileEdits& edits = files[fileOf(*skeleton)];
    if (repeats == Repeats::leaveOut && edits.hasTop) continue;
    insertAtTop(skeleton->source->module(), skeleton->comment);
    edits.hasTop = true;
    inserted.push_back(skeleton);
  }
  std::sort(inserted.begin(), inserted.end());  // they lie in one array
  return inserted;
}

}  // namespace tamrikon
