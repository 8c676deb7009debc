#include "ide/item_faces.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "ide/ide.h"

namespace tamrikon {
namespace {

TEST(ItemFaces, WhiteAloneTakesTheColourOfButtons) {
  for (int number = 100; number <= 103; ++number) {
    const Face face = loadFace(number, 0x123456);
    EXPECT_TRUE(face.width == 16 && face.height == 16);
    EXPECT_EQ(face.pixels.at(255), 0x00123456u);  // nothing stands in that corner
    EXPECT_EQ(std::count(face.pixels.begin(), face.pixels.end(), 0xFFFFFFFFu), 0);
    EXPECT_GT(std::count_if(face.pixels.begin(), face.pixels.end(),
                            [](std::uint32_t pixel) { return pixel >> 24 == 0xFF; }),
              80);
  }
  // The book is dark at its upper edge and light where its pages are, near the lower one.
  const Face book = loadFace(101, 0);
  EXPECT_EQ(book.pixels.at(1 * 16 + 8), 0xFF22304Fu);
  EXPECT_EQ(book.pixels.at(13 * 16 + 8), 0xFFFFFDF4u);
  EXPECT_THROW(loadFace(99, 0), IdeError);
  EXPECT_THROW(faceOf({}, 0), IdeError);
}

}  // namespace
}  // namespace tamrikon
