#include "host/line_matching.h"

#include <algorithm>

#include "host/scanning.h"

namespace tamrikon {

LineMatch matchLines(std::span<const std::string_view> old, std::span<const std::string_view> now) {
  LineMatch match;
  const std::size_t most = std::min(old.size(), now.size());
  while (match.prefix < most && old[match.prefix] == now[match.prefix]) ++match.prefix;
  const std::size_t left = most - match.prefix;
  while (match.suffix < left &&
         old[old.size() - 1 - match.suffix] == now[now.size() - 1 - match.suffix]) {
    ++match.suffix;
  }
  return match;
}

std::size_t partThatGoesOn(std::string_view line, std::span<const std::string_view> parts) {
  const std::string_view text = trimBlanks(line);
  const auto goesOn = [&](std::string_view part) {
    part = trimBlanks(part);
    return !part.empty() && !text.empty() &&
           (part.front() == text.front() || part.back() == text.back());
  };
  const auto found = std::find_if(parts.begin(), parts.end(), goesOn);
  return found == parts.end() ? 0 : static_cast<std::size_t>(found - parts.begin());
}

bool endsLike(std::string_view line, std::string_view old) {
  line = trimBlanks(line);
  old = trimBlanks(old);
  return !line.empty() && !old.empty() && line.back() == old.back();
}

}  // namespace tamrikon
