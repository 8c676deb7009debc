// Divides a line of Visual Basic source into what an editor colours.
#pragma once

#include <QStringList>
#include <QStringView>
#include <vector>

namespace tamrikon {

enum class VbToken {
  keyword,
  comment,
  marker,  // '** at the start of a documentation comment
  tag,     // such as @param, in a documentation comment
  string,
  number,  // dates too
  directive,
};

/// Position and length count UTF-16 units, positions from 0.
struct VbSpan {
  qsizetype start;
  qsizetype length;
  VbToken token;
};

/// What a line inherits from the one above it: a sum of these.
enum VbLineState { kPlain = 0, kInComment = 1, kInDocumentation = 2 };

/// Replaces `spans` by those of `line`, in their order; the words between them are in none. Returns
/// the state in which the next line begins. `userTags` are tags beside Tamrikon's own, such as
/// "@todo".
int scanVbLine(QStringView line, int state, const QStringList& userTags,
               std::vector<VbSpan>& spans);

}  // namespace tamrikon
