#include "comments/parsed_comment.h"

#include <gtest/gtest.h>

#include <array>

#include "base/text.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::TextCase;
using Lines = std::vector<std::string>;

class ParsedCommentTest : public testing::Test {
 protected:
  ParsedComment read(const Lines& body, Indents indents = Indents::kept) const {
    return parseComment(std::make_shared<Comment>(body), words, indents);
  }

  TagWords words{ProjectSettings().userName};
};

TEST_F(ParsedCommentTest, ReadsAWholeComment) {
  const ParsedComment parsed =
      read({"Adds an item.", "Fails when full.", "@param        key Required. String.",
            "Must be unique.", "@return       Long.", "@see          .Remove the opposite",
            "@rem          First remark.", "Second remark.", "@user2 two", "@author me",
            "@revision 3", "@version 1.2", "@same A", "@same B", "@includesource no",
            "@includesource yes", "@example a.txt  An example "});
  EXPECT_EQ(parsed.getDescription(), "Adds an item.\rFails when full.\r");
  EXPECT_EQ(parsed.getParamList(), Lines{"key\rRequired. String.\rMust be unique.\r"});
  EXPECT_EQ(parsed.getSeeList(), Lines{".Remove\rthe opposite"});
  EXPECT_EQ(parsed.getExampleList(), Lines{"a.txt\rAn example"});
  EXPECT_EQ(parsed.getRemarks(), "First remark.\rSecond remark.");
  EXPECT_EQ(join({parsed.getReturn(), parsed.getUser(2), parsed.getAuthor(), parsed.getRevision(),
                  parsed.getVersion(), parsed.getSame(), parsed.getIncludeSource()},
                 "|"),
            "Long.|two|me|3|1.2|B|yes");
}

TEST_F(ParsedCommentTest, FindsTagWordsByExactPrefixInFront) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [line, description] :
       {Case{"  @see x", ""}, Case{"@seealso", ""}, Case{"@See x", "@See x\r"},
        Case{"x @see", "x @see\r"}, Case{"@user6", "@user6\r"}}) {
    EXPECT_EQ(read({line}).getDescription(), description) << line;
  }
}

TEST_F(ParsedCommentTest, CutsTagTextAtWhitespace) {
  const auto check = [this](const TextCase& c) {
    EXPECT_EQ(read({"@see" + c["text"]}).getSeeList(), c.list("see"));
    EXPECT_EQ(read({"@param" + c["text"]}).getParamList(), c.list("param"));
  };
  test::forEachCase("comments/tag-texts.txt", {"text", "see", "param"}, check);
}

TEST_F(ParsedCommentTest, SortsSettingsIntoThreeTables) {
  const auto check = [this](const TextCase& c) {
    const std::array<Lines, 3> tables{c.list("first"), c.list("second"), c.list("third")};
    EXPECT_EQ(read(c.list("comment")).getSettingsList(), tables);
  };
  test::forEachCase("comments/setting-tables.txt", {"comment", "first", "second", "third"}, check);
}

TEST_F(ParsedCommentTest, FindsUserTagsByTheNamesOfTheSettings) {
  words = TagWords({"todo", "rem", "parameter", "", "x"});
  const ParsedComment parsed = read({"@todo a", "@rem b", "@parameter c", "@other d", "e"});
  EXPECT_EQ(parsed.getUser(1), "a");
  EXPECT_EQ(parsed.getUser(2), "b");
  EXPECT_EQ(parsed.getRemarks(), "b");
  EXPECT_EQ(parsed.getUser(3), "c");
  EXPECT_EQ(parsed.getParamList(), Lines{"eter\rc\r"});
  EXPECT_EQ(parsed.getUser(4), "todo a");
  EXPECT_EQ(parsed.getUser(5), "");

  EXPECT_EQ(read({"@rem a", "@other b"}).getRemarks(), "a") << "any @ ends the text";
  words = TagWords({"todo", "rem", "parameter", "user4", "x"});
  EXPECT_EQ(read({"@rem a", "@other b"}).getRemarks(), "a\r@other b");
}

TEST_F(ParsedCommentTest, KeepsOrIgnoresIndents) {
  const Lines body{"  first", "words", "  words",      "'  kept", "'words",
                   "",        "'",     "@rem   first", "  words", "'    kept"};
  const ParsedComment kept = read(body);
  EXPECT_EQ(kept.getDescription(), "  first\rwords\r  words\r'  kept\r'words\r\r'\r");
  EXPECT_EQ(kept.getRemarks(), "first\r  words\r'    kept");
  const ParsedComment ignored = read(body, Indents::ignored);
  EXPECT_EQ(ignored.getDescription(), "first\r words\r words\r  kept\r words\r \r \r");
  EXPECT_EQ(ignored.getRemarks(), "first\r words\r    kept");
  EXPECT_EQ(read({"'  first"}, Indents::ignored).getDescription(), "  first\r");
  ProjectSettings settings;
  for (const int mode : {0, 1, 2}) {
    settings.indentMode = static_cast<std::int16_t>(mode);
    EXPECT_EQ(indentsFor(settings), mode == 1 ? Indents::ignored : Indents::kept);
  }
}

}  // namespace
}  // namespace tamrikon
