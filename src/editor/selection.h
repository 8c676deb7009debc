// Whether text is selected.
#pragma once

#include "ide/ide.h"

namespace tamrikon {

inline bool isEmpty(const Selection& selection) {
  return selection.startLine == selection.endLine && selection.startColumn == selection.endColumn;
}

}  // namespace tamrikon
