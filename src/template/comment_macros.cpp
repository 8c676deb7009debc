#include "template/comment_macros.h"

#include <algorithm>

#include "base/case_folding.h"
#include "base/text.h"
#include "template/macro_scanner.h"

namespace tamrikon {

CommentMacros::CommentMacros(std::string_view names) {
  for (const std::string_view name : split(names, ' ')) {
    if (!name.empty()) names_.emplace_back(name);
  }
}

bool CommentMacros::isListed(std::string_view name) const {
  return std::any_of(names_.begin(), names_.end(), [&](const std::string& listed) {
    return CaseInsensitiveEqual()(listed, name);
  });
}

std::string CommentMacros::withListedCalls(std::string_view text) const {
  std::string result;
  result.reserve(text.size() + text.size() / 8);
  for (;;) {
    const std::size_t dollar = text.find('$');
    result += text.substr(0, dollar);
    if (dollar == std::string_view::npos) return result;
    text.remove_prefix(dollar);
    std::size_t length = text.starts_with("$$") ? 2 : 1;
    if (length == 1) {
      const ParsedName parsed = parseMacroName(text);
      if (parsed.isClosed && isListed(parsed.name)) length = parsed.length();
    }
    // What ends a name that isn't listed may begin one that is, as in "5$, 6$EOL$".
    result += length == 1 ? std::string_view("$$") : text.substr(0, length);
    text.remove_prefix(length);
  }
}

}  // namespace tamrikon
