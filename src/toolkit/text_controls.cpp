#include "toolkit/text_controls.h"

#include "base/text.h"

namespace tamrikon {
namespace {

std::string withCrLf(const std::string& text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
    if (text[i] == '\r' || text[i] == '\n') {
      result += "\r\n";
    } else {
      result += text[i];
    }
  }
  return result;
}

}  // namespace

void TextBox::setText(const std::string& text) {
  set(text_, withCrLf(text));
}

void TextBox::appendText(const std::string& text) {
  const std::string added = withCrLf(text);
  if (added.empty()) return;
  text_ += added;
  if (peer() != nullptr) peer()->textAppended(added);
}

void TextBox::selectAll() {
  if (peer() != nullptr) peer()->selectAll();
}

void TextBox::userEdited(const std::string& text) {
  const std::string edited = withCrLf(text);
  if (edited == text_) return;
  text_ = edited;
  call(onChange);
}

}  // namespace tamrikon
