#include "connect/copy_selection_as_code.h"

#include <string_view>
#include <utility>

#include "base/utf8.h"

namespace tamrikon {
namespace {

/// The offset behind the first `count` characters; behind all of them if there are fewer.
std::size_t offsetBehind(std::string_view text, int count) {
  std::size_t offset = 0;
  for (; count > 0 && offset < text.size(); --count) readCodePoint(text, offset);
  return offset;
}

}  // namespace

std::string codeExample(const CodeModule& module, Selection selection) {
  constexpr int kLastLine = 32767;
  auto& [startLine, startColumn, endLine, endColumn] = selection;
  if (startLine > endLine) std::swap(startLine, endLine);
  if (startLine == endLine && startColumn > endColumn) std::swap(startColumn, endColumn);
  if (endLine > kLastLine) {
    throw IdeError("a code example can't reach beyond line " + std::to_string(kLastLine));
  }
  const bool isWholeLine = startLine == endLine && startColumn == endColumn;
  if (isWholeLine) startColumn = 1;

  std::string text = "'$CODE$\r";
  for (int number = startLine; number <= endLine; ++number) {
    const std::string line = module.Lines(number, 1);
    std::string_view code = line;
    // Where both cuts fall on one line, the columns of the start count in what the end has left.
    if (number == endLine && !isWholeLine) code = code.substr(0, offsetBehind(code, endColumn - 1));
    if (number == startLine) code.remove_prefix(offsetBehind(code, startColumn - 1));
    text += '\'';
    text += code;
    text += number == endLine ? "\r" : "$EOL$\r";
  }
  return text + "'$END-CODE$";
}

void copySelectionAsCode(VBE& VBInstance, Toolkit& toolkit) {
  tryStep([&] {
    const CodePane* pane = VBInstance.ActiveCodePane();
    if (pane == nullptr) return;
    toolkit.setClipboardText(codeExample(pane->CodeModule(), pane->GetSelection()));
  });
}

}  // namespace tamrikon
