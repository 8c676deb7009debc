// Finds the structured comments of a module: runs of adjacent comment lines that begin with a
// marker line, '**, above a member's declaration or at the top of the module. Lines are physical
// ones and count from 1.
#pragma once

#include <optional>

#include "comments/comment_lines.h"
#include "vb/module_lines.h"

namespace tamrikon {

/// From the marker line to the last comment line, both included. With no line between them, the
/// comment has no body and counts as none.
struct LineRange {
  int first = 0;
  int last = 0;
};

struct CommentSearch {
  enum class End {
    foundMarker,
    noLineAbove,    // the declaration is on the first line
    withoutMarker,  // whatever the caller knew of the comment before holds on
  };
  End end = End::withoutMarker;
  LineRange range;  // with foundMarker alone
};

/// Looks for the comment above the declaration at `codeLocation`, past blank lines. Of several
/// markers in a run, the lowest counts.
CommentSearch findComment(const ModuleLines& module, int codeLocation);

/// The same for those who want the range alone.
std::optional<LineRange> getCommentRange(const ModuleLines& module, int codeLocation);

/// The comment that begins on the first line of the module that isn't blank.
std::optional<LineRange> getModuleCommentRange(const ModuleLines& module);

/// The raw lines below the marker.
Comment commentBody(const ModuleLines& module, const LineRange& range);

}  // namespace tamrikon
