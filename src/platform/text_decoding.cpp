#include "platform/text_decoding.h"

#include "base/utf8.h"

namespace tamrikon {

DecodedText decodeText(std::string_view bytes, const CodePage& page) {
  DecodedText result;
  if (bytes.starts_with(kUtf8Mark)) {
    result.encoding = TextEncoding::utf8WithMark;
    result.text = CodePage::find(kUtf8CodePage)->decode(withoutUtf8Mark(bytes));
  } else if (isAscii(bytes)) {
    result.text = bytes;
  } else if (isValidUtf8(bytes)) {
    result.encoding = TextEncoding::utf8;
    result.text = bytes;
  } else {
    result.text = page.decode(bytes);
  }
  return result;
}

std::vector<std::string_view> splitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n");
    lines.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    const std::size_t width = text.substr(end).starts_with("\r\n") ? 2 : 1;
    text.remove_prefix(end + width);
  }
  return lines;
}

}  // namespace tamrikon
