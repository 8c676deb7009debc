#include "comments/comment_parser.h"

#include <gtest/gtest.h>

#include "base/text.h"

namespace tamrikon {
namespace {

using Lines = std::vector<std::string>;

class CommentParserTest : public testing::Test {
 protected:
  const CommentParser& read(Lines body) {
    parser.setComment(std::make_shared<CommentLines>(std::move(body)));
    return parser;
  }

  ProjectSettings settings;
  CommentParser parser{settings};
};

TEST_F(CommentParserTest, ReadsAWholeComment) {
  read({"Adds an item.",
        "Fails when full.",
        "@param        key Required. String.",
        "Must be unique.",
        "@return       Long.",
        "@see          .Remove the opposite",
        "Not read by anyone.",
        "@rem          First remark.",
        "Second remark.",
        "@rem no",
        "@user2 two",
        "@author me",
        "@revision 3",
        "@version 1.2",
        "@same A",
        "@same B",
        "nor this",
        "@includesource no",
        "@includesource yes",
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

TEST_F(CommentParserTest, ReadsNothingFromNothing) {
  for (const CommentList& body : {CommentList(), std::make_shared<CommentLines>()}) {
    parser.setComment(body);
    EXPECT_EQ(parser.getDescription() + parser.getRemarks() + parser.getSame(), "");
    EXPECT_TRUE(parser.getParamList().empty());
    for (const auto& table : parser.getSettingsList()) EXPECT_TRUE(table.empty());
  }
  EXPECT_EQ(parser.getUser(0) + parser.getUser(6), "");
}

TEST_F(CommentParserTest, FindsTagWordsByExactPrefixInFront) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [line, description] :
       {Case{"  @see x", ""}, Case{"@seealso", ""}, Case{"@settings", ""}, Case{"@user5", ""},
        Case{"@See x", "@See x\r"}, Case{"\t@see x", "\t@see x\r"}, Case{"x @see", "x @see\r"},
        Case{"@user6", "@user6\r"}, Case{"@", "@\r"}}) {
    EXPECT_EQ(read({line}).getDescription(), description) << line;
  }
}

TEST_F(CommentParserTest, CutsTagTextAtWhitespace) {
  struct Case {
    const char* text;
    Lines see;
    Lines param;
  };
  for (const Case& c : {
           Case{"", {}, {"\r"}},
           Case{" a", {"a\r"}, {"a\r"}},
           Case{"  a   b  c ", {"a\rb  c"}, {"a\rb  c\r"}},
           Case{" a \tb", {"a\r\tb"}, {"a\r\tb\r"}},
           Case{" a\t b", {"a\rb"}, {"a\rb\r"}},
           Case{"\ta b", {"\ra b"}, {"\ra b\r"}},
           Case{"also x", {"also\rx"}, {"also\rx\r"}},
       }) {
    EXPECT_EQ(read({std::string("@see") + c.text}).getSeeList(), c.see) << c.text;
    EXPECT_EQ(read({std::string("@param") + c.text}).getParamList(), c.param) << c.text;
  }
}

TEST_F(CommentParserTest, SortsSettingsIntoThreeTables) {
  struct Case {
    const char* name;
    Lines body;
    std::array<Lines, 3> tables;
  };
  for (const Case& c : {
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
           Case{"literal without end", {"@set a b \"c d"}, {Lines{"a\rb\r\"c d\r\r"}, {}, {}}},
       }) {
    EXPECT_EQ(read(c.body).getSettingsList(), c.tables) << c.name;
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
