#include "toolkit/accelerators.h"

#include <gtest/gtest.h>

#include <cctype>
#include <set>

namespace tamrikon {
namespace {

std::vector<std::string> marked(const std::vector<std::string>& captions,
                                const std::string& taken = "") {
  const std::vector<std::size_t> letters = chooseAccelerators(captions, taken);
  std::vector<std::string> result;
  for (std::size_t i = 0; i < captions.size(); ++i) {
    result.push_back(markedCaption(captions[i], letters[i]));
  }
  return result;
}

using Captions = std::vector<std::string>;

TEST(AcceleratorsTest, FirstLettersOfWordsComeFirst) {
  EXPECT_EQ(marked({"Add", "Remove all", "Rename"}), (Captions{"&Add", "&Remove all", "R&ename"}));
  EXPECT_EQ(marked({"Save", "Save as"}), (Captions{"&Save", "Save &as"}));
  EXPECT_EQ(marked({"...", "", "A", "a", "Find & replace", "&"}),
            (Captions{"...", "", "&A", "a", "&Find && replace", "&&"}));
  EXPECT_EQ(marked({"Don't ask"}, "d"), (Captions{"Don't &ask"})) << "t begins no word";
}

TEST(AcceleratorsTest, CaptionThatWouldGetNoneTakesALetterFromOneThatCanMove) {
  EXPECT_EQ(marked({"Ab", "A"}), (Captions{"A&b", "&A"}));
  EXPECT_EQ(marked({"Abc", "Ba", "A"}), (Captions{"Ab&c", "&Ba", "&A"}));
}

TEST(AcceleratorsTest, NoLetterIsGivenTwice) {
  const Captions captions = {"Compile", "Cancel",  "Close",   "Check",     "Clear", "Copy",
                             "Choose",  "Changes", "Columns", "Character", "Cut",   "Count"};
  const std::vector<std::size_t> letters = chooseAccelerators(captions);
  std::set<int> given;
  for (std::size_t i = 0; i < captions.size(); ++i) {
    ASSERT_LT(letters[i], captions[i].size()) << captions[i];
    EXPECT_TRUE(given.insert(std::tolower(captions[i][letters[i]])).second) << captions[i];
  }
}

}  // namespace
}  // namespace tamrikon
