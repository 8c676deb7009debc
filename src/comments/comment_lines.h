// The lines of one comment, as they travel from the source to the pages.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace tamrikon {

/// Raw lines are as they stand in the source; body lines have lost indentation and quote.
using CommentLines = std::vector<std::string>;

/// A comment that several members can share: equal pointers, not equal lines, say that they do.
using CommentList = std::shared_ptr<CommentLines>;

/// The body lines of raw lines, as a new comment: each line trimmed, then one leading quote
/// removed. Blanks behind the quote stay.
CommentList stripCommentQuotes(CommentLines rawLines);

}  // namespace tamrikon
