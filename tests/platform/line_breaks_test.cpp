#include "platform/line_breaks.h"

#include <gtest/gtest.h>

#include <string>

namespace tamrikon {
namespace {

// The walk goes by words and by pieces: each place of a CR in them has to do the same. The letters
// beside a CR in the code table and those beyond ASCII are what a mistake in it would take for one.
TEST(LineBreaks, FollowEachCrWhereverItIs) {
  for (const std::size_t length :
       {std::size_t{0}, std::size_t{7}, std::size_t{33}, std::size_t{4099}, std::size_t{8192}}) {
    for (std::size_t step = 1; step < 12; ++step) {
      for (const bool isAscii : {true, false}) {
        std::string text(length, '\x0C');
        for (std::size_t i = 1; i < length; i += 3) text[i] = isAscii ? '\x0E' : '\x8D';
        for (std::size_t i = step - 1; i < length; i += step) text[i] = '\r';
        if (!isAscii) text += "\xFF";
        std::string expected = "kept";
        for (const char c : text) {
          expected += c;
          if (c == '\r') expected += '\n';
        }
        std::string bytes = "kept";
        EXPECT_EQ(appendWithLineBreaks(bytes, text), isAscii) << length << ' ' << step;
        EXPECT_EQ(bytes, expected) << length << ' ' << step;
      }
    }
  }
}

}  // namespace
}  // namespace tamrikon
