// The bitmaps that the program carries in itself.
#pragma once

#include <cstdint>
#include <span>

namespace tamrikon {

/// The bytes of the bitmap file that bitmaps/bitmaps.rc names under `number`; empty if there is
/// none.
std::span<const std::uint8_t> bitmapResource(int number);

}  // namespace tamrikon
