#include "comments/comment_parser.h"

#include <gtest/gtest.h>

#include <array>

#include "base/text.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::TextCase;
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
  const auto check = [this](const TextCase& c) {
    EXPECT_EQ(read({"@see" + c["text"]}).getSeeList(), c.list("see"));
    EXPECT_EQ(read({"@param" + c["text"]}).getParamList(), c.list("param"));
  };
  test::forEachCase("comments/tag-texts.txt", {"text", "see", "param"}, check);
}

TEST_F(CommentParserTest, SortsSettingsIntoThreeTables) {
  const auto check = [this](const TextCase& c) {
    const std::array<Lines, 3> tables{c.list("first"), c.list("second"), c.list("third")};
    EXPECT_EQ(read(c.list("comment")).getSettingsList(), tables);
  };
  test::forEachCase("comments/setting-tables.txt", {"comment", "first", "second", "third"}, check);
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
