#include "editor/comment_fields.h"

#include <gtest/gtest.h>

#include "editor/compose_comment.h"
#include "editor/lines.h"
#include "editor/parameter_update.h"
#include "editor/setting_tables.h"

namespace tamrikon {
namespace {

using test::layoutOf;
using Lines = CommentLines;

TEST(FieldText, JoinsLinesOnlyWhereTheEndsAreMarked) {
  const std::string text = "a\r$EOL$b$EOL$\rc\r";
  EXPECT_EQ(convertFieldText(text, layoutOf(-80, 0)), "a\r\n$EOL$b$EOL$\r\nc\r\n");
  EXPECT_EQ(convertFieldText(text, layoutOf(-80, 1)), "a \r\nb\r\nc ");
  EXPECT_EQ(convertFieldText(text, layoutOf(-80, 2)), "a \r\nb\r\nc ");
  const FieldList items{"key\rone\rtwo\r"};
  EXPECT_EQ(convertListItems(items, 1, layoutOf(-80, 0)), FieldList{"key\r\none\r\ntwo"});
  EXPECT_EQ(convertListItems(items, 1, layoutOf(-80, 1)), FieldList{"key\r\none two"});
  EXPECT_EQ(convertListItems(items, 1, layoutOf(-80, 2)), FieldList{"key one two"});
  Lines lines;
  addCommentLines("a\r\nb", lines, layoutOf(-80, 1));
  addCommentLines("", lines, layoutOf(-80, 1));
  addCommentLines("a\r\nb", lines, layoutOf(-80, 2));
  EXPECT_EQ(lines, (Lines{"a$EOL$", "b", "a", "b"}));
}

TEST(FieldText, ShowsLinksAndTakesThemApart) {
  EXPECT_EQ(formatLinkList({".Go\r", "Car\rthe [red] one", "\rx"}),
            (FieldList{".Go", "Car [the [red] one]", " [x]"}));
  for (const auto& [item, link, label] : {std::tuple(".Go", ".Go", ""),
                                          {"Car [the [red] one]", "Car", "the [red] one"},
                                          {"Car [oné", "Car", "on"},
                                          {"[", "", ""}}) {
    EXPECT_EQ(splitLinkItem(item).link, link) << item;
    EXPECT_EQ(splitLinkItem(item).label, label) << item;
  }
}

TEST(ComposeComment, GivesEveryTagItsPlace) {
  const Lines mixed = test::lines(
      "@same M.Other|@version  2|@user1\tx|@see Car  the red one|@return Long.|  more|"
      "@includesource 1|@param key The key.|@set key A 1 x|@example \"f|@set key B \"a b\"|"
      "@author Ann|@revision 3|@rem|first|@a20LetterTagName12 y|@set late C|@param n|@todo later");
  ProjectSettings settings = layoutOf(-80, 0);
  settings.indentMode = 1;  // doesn't matter
  EXPECT_EQ(join(composeComment(parseIntoFields(mixed, settings), settings), "|"),
            "@rem          |first|@param        key The key.|@param        n @todo later|"
            "@set          key A 1 x|@set          key B \"a b\" |@set          late C  |"
            "@return       Long.|  more|@author       Ann|@version      2|@revision     3|"
            "@includesource yes|@user1        \tx|@a20LetterTagName12 y|"
            "@see          Car the red one|@example      \"f |@same         M.Other");
  EXPECT_EQ(CollectionToCommentString({"a", ""}), "'**\r\n'a\r\n'");

  CommentFields fields;
  fields.description = " ";  // the one text that may be blank
  fields.remarks = "  ";
  fields.returns = "\r\n";
  fields.parameters = {"key"};
  EXPECT_EQ(composeComment(fields, settings),
            (Lines{" ", "@param        key ", "@return       ", ""}));
  fields = {};
  fields.remarks = "one two three";
  settings.wordWrapLength = 20;
  EXPECT_EQ(composeComment(fields, settings), (Lines{"@rem          one", "two three"}));
}

TEST(ParameterUpdate, RenewsHeaders) {
  struct Case {
    const char *current, *merged;
  };
  const std::string required = "Required. Long.";
  for (const Case& c : {
           Case{"Required. Integer. The count.", " The count."}, Case{"The count.", "The count."},
           Case{"", ""}, Case{"required. Long. x", "required. Long. x"},
           Case{"Required. The count. x", "Required. The count. x"},
           Case{"Required. Car object. x", " x"},
           Case{"Required. ParamArray, comma-delimited list of Variant values. x", " x"},
           Case{"Optional. Long. Default value is 5. x", " x"},
           Case{"Optional. Long. Default value is 5", " Default value is 5"},
           Case{"Required. Long. Default value is 5. x", " Default value is 5. x"},
           Case{"Optional. Double. Default value is 1.5. x", "5. x"},  // at the second full stop
           Case{"Long. x", "Long. x"},  // of a property, which has no word in front
       }) {
    EXPECT_EQ(mergeHeader(c.current, required, false), required + c.merged) << c.current;
  }
  for (const Case& c : {Case{"Integer. The sum", "Long. The sum"}, Case{"No stop", "Long.No stop"},
                        Case{"ADODB.Field object. x", "Long.Field object. x"}}) {
    EXPECT_EQ(mergeHeader(c.current, "Long.", true), c.merged) << c.current;
  }
  for (const std::string no : {"", "1a", "a b", "a-b", "é", " object", "A object object"}) {
    EXPECT_FALSE(isTypeWord(no)) << no;
  }
  EXPECT_TRUE(isTypeWord("A_1 object"));
  EXPECT_TRUE(isTypeWord(std::string(255, 'a')));
  EXPECT_FALSE(isTypeWord(std::string(256, 'a')));
}

TEST(ParameterUpdate, FollowsTheDeclaration) {
  CommentFields fields;
  fields.returns = "Long. x";
  fields.parameters = {"old\r\nRequired. Long. gone", "b\r\nRequired. Long. kept",
                       "B\r\nanother case"};
  fields.settingsLists = {FieldList{"old\r\nA\r\n1\r\n"}, FieldList{"b\r\nA\r\n1\r\n"},
                          FieldList{"B\r\nA\r\n1\r\n"}};
  updateParameters(fields, {{"new\r\nRequired. Long.", "b\r\nRequired. Byte."}, ""});
  EXPECT_EQ(fields.returns, "");
  EXPECT_EQ(fields.parameters, (FieldList{"new\r\nRequired. Long.", "b\r\nRequired. Byte. kept"}));
  EXPECT_EQ(fields.settingsLists, (SettingTables{FieldList{"b\r\nA\r\n1\r\n"}, {}, {}}));
}

TEST(SettingTables, BelongToThreeParameters) {
  SettingTables tables;
  const auto item = [](const std::string& name) { return name + "\r\nK\r\n1\r\nx\r\ny"; };
  for (const char* name : {"a", "b", "c", "d"}) {
    storeParameterSettings(tables, name, {{"K", "1", "x\r\ny"}});
  }
  EXPECT_EQ(tables, (SettingTables{FieldList{item("c")}, {item("b")}, {item("a")}}));
  storeParameterSettings(tables, "c", {});
  storeParameterSettings(tables, "a", {{"L", "2", ""}});
  EXPECT_EQ(tables, (SettingTables{FieldList{"a\r\nL\r\n2\r\n"}, {item("b")}, {}}));
}

}  // namespace
}  // namespace tamrikon
