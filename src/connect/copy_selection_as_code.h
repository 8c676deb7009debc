// Source as a code example: comment lines that show it on a page when they stand in a comment.
#pragma once

#include <string>

#include "ide/ide.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

/// The code example of a selection, CR between its lines and none behind the last. Columns count
/// characters. Start and end may come the wrong way round: the lines change places, and columns do
/// so on one line. If they are equal, the whole line is meant; an end column behind the end of its
/// line takes all of it. Throws IdeError for lines that the module lacks and for those beyond
/// 32767, which an IDE can't number.
std::string codeExample(const CodeModule& module, Selection selection);

/// Puts the code example of what is selected in the active code window on the clipboard. Where that
/// fails the clipboard stays as it is.
void copySelectionAsCode(VBE& VBInstance, Toolkit& toolkit);

}  // namespace tamrikon
