// The head that the IDE keeps above the code of a source file: VERSION line, Object lines, the
// block of a form's controls, and the module's attributes.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tamrikon {

struct SourceHead {
  std::size_t attributesStart = 0;  // offset of the first attribute line
  std::size_t codeStart = 0;        // offset of the first visible line

  /// Offset of the outermost Begin if it isn't closed: all that follows counts as its block.
  std::optional<std::size_t> unclosedStart;

  /// The class behind the outermost Begin, such as "VB.Form".
  std::string_view blockClass;
};

/// A block without its end reaches to the end of the text. The delimiters are ASCII that no
/// double-byte page uses at the start of a line, so that the text may as well be undecoded bytes.
SourceHead readSourceHead(std::string_view text);

/// Whether the IDE hides the line as an attribute.
bool isAttributeLine(std::string_view line);

}  // namespace tamrikon
