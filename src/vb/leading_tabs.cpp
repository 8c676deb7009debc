#include "vb/leading_tabs.h"

#include <algorithm>

#include "vb/scanning.h"

namespace tamrikon {
namespace {

constexpr std::size_t kTabWidth = 4;
constexpr std::string_view kLineEnds = "\r\n";

std::size_t blanksFor(std::string_view indent) {
  std::size_t column = 0;
  for (const char c : indent) column += c == '\t' ? kTabWidth - column % kTabWidth : 1;
  return column;
}

}  // namespace

std::optional<std::string> withoutLeadingTabs(std::string_view text, std::size_t start) {
  std::string result;
  std::size_t copied = 0;
  // Each line is looked at once, however many tabs it has: most have none, and aren't looked at.
  for (std::size_t tab = text.find('\t', start); tab != std::string_view::npos;) {
    const std::size_t endBefore = text.substr(start, tab - start).find_last_of(kLineEnds);
    if (endBefore != std::string_view::npos) start += endBefore + 1;
    const std::string_view line = text.substr(start);
    const std::string_view indent = line.substr(0, line.size() - skipBlanks(line).size());
    if (start + indent.size() > tab) {
      result.append(text, copied, start - copied);
      result.append(blanksFor(indent), ' ');
      copied = start + indent.size();
    }
    start = std::min(text.find_first_of(kLineEnds, start), text.size());
    tab = text.find('\t', start);
  }
  if (copied == 0) return std::nullopt;
  return result.append(text, copied);
}

}  // namespace tamrikon
