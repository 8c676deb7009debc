// How the command line names places in a project's sources. Lines are those that the IDE shows:
// the hidden head of a file and its attribute lines don't count.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ide/ide.h"

namespace tamrikon {

/// Module, Module.Member, Module.Member'get ('let, 'set) or Module:LINE.
struct CommentTarget {
  std::string module;
  std::string member;            // empty if the module or a line is meant
  std::optional<ProcKind> kind;  // of a property's procedures
  int line = 0;                  // 0 unless a line is meant

  bool isModule() const { return member.empty() && line == 0; }
};

/// Nothing for a text of another form.
std::optional<CommentTarget> readCommentTarget(std::string_view text);

/// MODULE:RANGE, a range being LINE, LINE-LINE or LINE.COL-LINE.COL.
struct SourceRange {
  std::string module;
  Selection selection;  // of whole lines, up to a column that no line reaches
};

/// Nothing for a text of another form.
std::optional<SourceRange> readSourceRange(std::string_view text);

// What is wrong with the form of an argument, naming it; empty if nothing is.
std::string faultOfCommentTarget(const std::string& argument);
std::string faultOfSourceRange(const std::string& argument);

}  // namespace tamrikon
