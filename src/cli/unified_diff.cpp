#include "cli/unified_diff.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "base/line_diff.h"

namespace tamrikon {
namespace {

using Lines = std::vector<std::string_view>;

/// Each with its LF; the last one may lack it.
Lines linesOf(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, size));
    text.remove_prefix(size);
  }
  return lines;
}

/// A name with blanks needs a tab to end it, and one with other awkward characters quotes.
std::string fileLine(std::string_view mark, std::string_view path) {
  std::string name;
  bool isAwkward = false;
  for (const char c : path) {
    if (const auto code = static_cast<unsigned char>(c); code < ' ' || code == 0x7F) {
      char octal[8];
      std::snprintf(octal, sizeof octal, "\\%03o", code);
      name += octal;
    } else {
      if (c == '"' || c == '\\') name += '\\';
      name += c;
    }
    isAwkward = isAwkward || name.back() != c || c == '"' || c == '\\';
  }
  std::string line = std::string(mark) + " ";
  if (isAwkward) return line + '"' + name + "\"\n";
  line += path;
  return line + (path.find(' ') == std::string_view::npos ? "\n" : "\t\n");
}

std::string rangeOf(std::size_t start, std::size_t size) {
  // Nothing stands behind the line before it.
  std::string range = std::to_string(size == 0 ? start : start + 1);
  return size == 1 ? range : range + "," + std::to_string(size);
}

class HunkWriter {
 public:
  HunkWriter(const Lines& oldLines, const Lines& newLines, std::string& text)
      : old_(oldLines), new_(newLines), text_(text) {}

  /// Changes that are so near to each other that their contexts touch.
  void write(const LineChange* first, const LineChange* last) {
    const std::size_t above = std::min(kContext, first->oldStart);
    const std::size_t below = std::min(kContext, old_.size() - last->oldEnd);
    const LineChange all{first->oldStart - above, last->oldEnd + below, first->newStart - above,
                         last->newEnd + below};
    text_ += "@@ -" + rangeOf(all.oldStart, all.oldSize()) + " +" +
             rangeOf(all.newStart, all.newSize()) + " @@\n";
    std::size_t line = all.oldStart;
    for (const LineChange* change = first; change <= last; ++change) {
      add(' ', old_, line, change->oldStart);
      add('-', old_, change->oldStart, change->oldEnd);
      add('+', new_, change->newStart, change->newEnd);
      line = change->oldEnd;
    }
    add(' ', old_, line, all.oldEnd);
  }

  static constexpr std::size_t kContext = 3;

 private:
  void add(char mark, const Lines& lines, std::size_t start, std::size_t end) {
    for (std::size_t i = start; i < end; ++i) {
      text_ += mark;
      text_ += lines[i];
      if (!lines[i].ends_with('\n')) text_ += "\n\\ No newline at end of file\n";
    }
  }

  const Lines& old_;
  const Lines& new_;
  std::string& text_;
};

}  // namespace

std::string unifiedDiff(std::string_view path, std::string_view before, std::string_view after) {
  const Lines oldLines = linesOf(before);
  const Lines newLines = linesOf(after);
  const std::vector<LineChange> changes = changedLines(oldLines, newLines);
  if (changes.empty()) return {};
  std::string text = fileLine("---", path) + fileLine("+++", path);
  HunkWriter hunks(oldLines, newLines, text);
  const LineChange* first = changes.data();
  const LineChange* const end = first + changes.size();
  for (const LineChange* last = first; last != end; ++last) {
    const bool isNear =
        last + 1 != end && last[1].oldStart - last->oldEnd <= 2 * HunkWriter::kContext;
    if (isNear) continue;
    hunks.write(first, last);
    first = last + 1;
  }
  return text;
}

}  // namespace tamrikon
