#include "connect/item_faces.h"

#include <array>
#include <string>

#include "connect/bitmap_resources.h"
#include "ide/ide.h"

namespace tamrikon {
namespace {

constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kOpaque = 0xFF000000;
constexpr std::size_t kFileHeaderSize = 14;
constexpr std::uint32_t kLargestSide = 1024;

/// Numbers of a bitmap file, the lowest byte first. Reading beyond its end fails.
class BitmapReader {
 public:
  explicit BitmapReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  std::uint32_t byte(std::size_t at) const {
    if (at >= bytes_.size()) throw IdeError("the bitmap ends too early");
    return bytes_[at];
  }
  std::uint32_t word(std::size_t at) const { return byte(at) | byte(at + 1) << 8; }
  std::uint32_t number(std::size_t at) const { return word(at) | word(at + 2) << 16; }

 private:
  std::span<const std::uint8_t> bytes_;
};

}  // namespace

Face faceOf(std::span<const std::uint8_t> bitmap, std::uint32_t buttonFaceColour) {
  const BitmapReader file(bitmap);
  const std::size_t pixels = file.number(10);
  const std::size_t palette = kFileHeaderSize + file.number(14);
  const std::uint32_t width = file.number(18);
  const std::uint32_t height = file.number(22);
  const bool isKnown = file.word(0) == 0x4D42 && file.word(28) == 4 && file.number(30) == 0;
  if (!isKnown || width > kLargestSide || height > kLargestSide) {
    throw IdeError("the bitmap isn't one of 16 colours");
  }
  const std::uint32_t used = file.number(46);  // 0: all of them
  std::array<std::uint32_t, 16> colours{};
  for (std::size_t n = 0; n < (used == 0 || used > 16 ? 16 : used); ++n) {
    const std::uint32_t colour = file.number(palette + 4 * n) & 0xFFFFFF;
    colours[n] = colour == kWhite ? buttonFaceColour & 0xFFFFFF : kOpaque | colour;
  }

  Face face{static_cast<int>(width), static_cast<int>(height), {}};
  face.pixels.reserve(std::size_t{width} * height);
  const std::size_t rowSize =
      (std::size_t{width} + 7) / 8 * 4;         // rows fill whole groups of four bytes
  for (std::size_t row = height; row-- > 0;) {  // the lowest stands first
    for (std::size_t x = 0; x < width; ++x) {
      const std::uint32_t pair = file.byte(pixels + row * rowSize + x / 2);
      face.pixels.push_back(colours[x % 2 == 0 ? pair >> 4 : pair & 15]);
    }
  }
  return face;
}

Face loadFace(int number, std::uint32_t buttonFaceColour) {
  const std::span<const std::uint8_t> bitmap = bitmapResource(number);
  if (bitmap.empty()) throw IdeError("there is no bitmap " + std::to_string(number));
  return faceOf(bitmap, buttonFaceColour);
}

}  // namespace tamrikon
