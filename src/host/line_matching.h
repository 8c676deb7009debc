// Which lines of a stretch that is replaced live on in the lines that come instead.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace tamrikon {

/// How many lines are the same at the start and at the end; no line counts twice.
struct LineMatch {
  std::size_t prefix = 0;
  std::size_t suffix = 0;
};
LineMatch matchLines(std::span<const std::string_view> old, std::span<const std::string_view> now);

/// `line` has been divided into `parts` (at least one): the index of the part that goes on as that
/// line, the first that begins or ends like it, blanks apart.
std::size_t partThatGoesOn(std::string_view line, std::span<const std::string_view> parts);

/// Whether the end of `line` could be what is left of the end of `old`, blanks apart.
bool endsLike(std::string_view line, std::string_view old);

}  // namespace tamrikon
