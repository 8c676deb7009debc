#include "comments/comment_parser.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>

#include "base/text.h"

namespace tamrikon {
namespace {

using Lines = std::vector<std::string>;

class CommentParserTest : public testing::Test {
 protected:
  const CommentParser& read(const Lines& body) {
    parser.setComment(std::make_shared<Comment>(body));
    return parser;
  }

  ProjectSettings settings;
  CommentParser parser{settings};
};

TEST_F(CommentParserTest, ReadsAWholeComment) {
  read({"Adds an item.", "Fails when full.", "@param        key Required. String.",
        "Must be unique.", "@return       Long.", "@see          .Remove the opposite",
        "@rem          First remark.", "Second remark.", "@user2 two", "@author me", "@revision 3",
        "@version 1.2", "@same A", "@same B", "@includesource no", "@includesource yes",
        "@example a.txt  An example "});
  EXPECT_EQ(parser.getDescription(), "Adds an item.\rFails when full.\r");
  EXPECT_EQ(parser.getParamList(), Lines{"key\rRequired. String.\rMust be unique.\r"});
  EXPECT_EQ(parser.getSeeList(), Lines{".Remove\rthe opposite"});
  EXPECT_EQ(parser.getExampleList(), Lines{"a.txt\rAn example"});
  EXPECT_EQ(parser.getRemarks(), "First remark.\rSecond remark.");
  EXPECT_EQ(join({parser.getReturn(), parser.getUser(2), parser.getAuthor(), parser.getRevision(),
                  parser.getVersion(), parser.getSame(), parser.getIncludeSource()},
                 "|"),
            "Long.|two|me|3|1.2|B|yes");
}

TEST_F(CommentParserTest, FindsTagWordsByExactPrefixInFront) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [line, description] :
       {Case{"  @see x", ""}, Case{"@seealso", ""}, Case{"@See x", "@See x\r"},
        Case{"x @see", "x @see\r"}, Case{"@user6", "@user6\r"}}) {
    EXPECT_EQ(read({line}).getDescription(), description) << line;
  }
}

TEST_F(CommentParserTest, CutsTagTextAtWhitespace) {
  using Case = std::tuple<const char*, Lines, Lines>;
  for (const auto& [text, see, param] : {
           Case{"", {}, {"\r"}},
           Case{"  a   b  c ", {"a\rb  c"}, {"a\rb  c\r"}},
           Case{" a \tb", {"a\r\tb"}, {"a\r\tb\r"}},
           Case{" a\t b", {"a\rb"}, {"a\rb\r"}},
           Case{"\ta b", {"\ra b"}, {"\ra b\r"}},
       }) {
    EXPECT_EQ(read({std::string("@see") + text}).getSeeList(), see) << text;
    EXPECT_EQ(read({std::string("@param") + text}).getParamList(), param) << text;
  }
}

TEST_F(CommentParserTest, SortsSettingsIntoThreeTables) {
  using Case = std::tuple<const char*, Lines, std::array<Lines, 3>>;
  for (const auto& [name, body, tables] : {
           Case{"literal with blanks, further lines",
                {"@set  Mode  A  \"x \"\"y\" first  one ", "  more", "@set Mode B 2"},
                {Lines{"Mode\rA\r\"x \"\"y\"\rfirst  one\r  more\r", "Mode\rB\r2\r\r"}, {}, {}}},
           Case{"fewer words",
                {"@set Mode", "@set Mode A", "@set Flags"},
                {Lines{"Mode\r\r\r\r", "Mode\rA\r\r\r"}, {"Flags\r\r\r\r"}, {}}},
           Case{"a fourth parameter is dropped, with its lines",
                {"@set a 1", "@set b 1", "@set c 1", "@set d 1", "lost", "@set b 2", "@set"},
                {Lines{"a\r1\r\r\r"}, {"b\r1\r\r\r", "b\r2\r\r\r"}, {"c\r1\r\r\r"}}},
           Case{"no parameter: the table without a name",
                {"@set", "@set a", "@set", "@set A"},
                {Lines{"\r\r\r\r", "a\r\r\r\r"}, {"\r\r\r\r", "A\r\r\r\r"}, {}}},
       }) {
    EXPECT_EQ(read(body).getSettingsList(), tables) << name;
  }
}

TEST_F(CommentParserTest, TakesUserTagsAsTheyWereWhenTheCommentCame) {
  settings.userName = {"todo", "rem", "parameter", "", "x"};
  read({"@todo a", "@rem b", "@parameter c", "@other d", "e"});
  EXPECT_EQ(parser.getUser(1), "a");
  EXPECT_EQ(parser.getUser(2), "b");
  EXPECT_EQ(parser.getRemarks(), "b");
  EXPECT_EQ(parser.getUser(3), "c");
  EXPECT_EQ(parser.getParamList(), Lines{"eter\rc\r"});
  EXPECT_EQ(parser.getUser(4), "todo a");
  EXPECT_EQ(parser.getUser(5), "");

  read({"@rem a", "@other b"});
  EXPECT_EQ(parser.getRemarks(), "a");  // any "@" ends the text
  settings.userName[3] = "user4";
  EXPECT_EQ(parser.getRemarks(), "a");
  EXPECT_EQ(read({"@rem a", "@other b"}).getRemarks(), "a\r@other b");
}

TEST_F(CommentParserTest, FollowsTheIndentMode) {
  const Lines body{"  first", "words", "  words",      "'  kept", "'words",
                   "",        "'",     "@rem   first", "  words", "'    kept"};
  read(body);
  EXPECT_EQ(parser.getDescription(), "  first\rwords\r  words\r'  kept\r'words\r\r'\r");
  EXPECT_EQ(parser.getRemarks(), "first\r  words\r'    kept");
  settings.indentMode = 1;
  EXPECT_EQ(parser.getDescription(), "first\r words\r words\r  kept\r words\r \r \r");
  EXPECT_EQ(parser.getRemarks(), "first\r words\r    kept");
  EXPECT_EQ(read({"'  first"}).getDescription(), "  first\r");
  settings.indentMode = 2;
  EXPECT_EQ(parser.getDescription(), "'  first\r");
}

}  // namespace
}  // namespace tamrikon
