// What a source file keeps of each visible line and of each hidden attribute.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/line_reader.h"

namespace tamrikon {

/// In place of an origin: the text didn't come from the file.
constexpr std::uint32_t kNoOrigin = UINT32_MAX;

/// What belongs to a visible line beside its text. `origin` is the number, from 0, of the line's
/// first physical line in the file as it was read.
struct LineTail {
  std::uint32_t origin = kNoOrigin;
  std::uint32_t group = 0;  // of the attributes behind the line; 0 without attributes
  LineEnd end = LineEnd::none;
};

struct SourceLine {
  std::string_view text;
  LineTail tail;
};

struct SourceAttribute {
  std::string_view text;  // with the line ends between its physical lines
  std::uint32_t origin = kNoOrigin;
  LineEnd end = LineEnd::none;
};

}  // namespace tamrikon
