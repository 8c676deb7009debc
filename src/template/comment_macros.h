// Which macros the comments of a project may call, where a template says so.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tamrikon {

/// What a template's line COMMENT-MACROS lists. Texts of a project then bring no markup of their
/// own: they call what is listed, and any other "$" in them is just a "$".
class CommentMacros {
 public:
  /// `names` are divided by blanks; their case doesn't matter.
  explicit CommentMacros(std::string_view names);

  /// `text` as a macro's value: with each "$" doubled but those of the listed calls and of pairs.
  std::string withListedCalls(std::string_view text) const;

 private:
  bool isListed(std::string_view name) const;

  std::vector<std::string> names_;
};

}  // namespace tamrikon
