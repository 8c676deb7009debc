// From the bytes of a file that people wrote to text: byte order mark, UTF-8 or code page.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/code_page.h"

namespace tamrikon {

enum class TextEncoding { codePage, utf8, utf8WithMark };

struct DecodedText {
  std::string text;  // without the mark
  TextEncoding encoding = TextEncoding::codePage;
};

/// Bytes that begin with the UTF-8 mark, and bytes above 0x7F that are valid UTF-8 as a whole, are
/// read as UTF-8; all else in `page`. Behind a mark, a byte that isn't UTF-8 is read as an
/// undefined one.
DecodedText decodeText(std::string_view bytes, const CodePage& page);

/// The lines of `text`, any of CR LF, LF and CR being a line end. A text that ends in a line end
/// has no empty line behind it.
std::vector<std::string_view> splitLines(std::string_view text);

}  // namespace tamrikon
