// The pictures on the add-in's items.
#pragma once

#include <cstdint>
#include <span>

#include "ide/command_bars.h"

namespace tamrikon {

/// The face of a bitmap file of 16 colours, as Windows has them, uncompressed. What is white in it
/// gets the button-face colour (0xRRGGBB), and is transparent, since an item may also stand in a
/// menu of another colour. Throws IdeError for any other file.
Face faceOf(std::span<const std::uint8_t> bitmap, std::uint32_t buttonFaceColour);

/// The same of the bitmap resource `number`. Throws IdeError if there is none.
Face loadFace(int number, std::uint32_t buttonFaceColour);

}  // namespace tamrikon
