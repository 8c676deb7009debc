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
}

TEST(FieldText, TakesLinksApart) {
  for (const auto& [item, link, label] : {std::tuple("Car [the [red] one]", "Car", "the [red] one"),
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
}

TEST(ParameterUpdate, RenewsHeaders) {
  struct Case {
    const char *current, *merged;
  };
  const std::string required = "Required. Long.";
  for (const Case& c : {
           Case{"", ""}, Case{"required. Long. x", "required. Long. x"},
           Case{"Required. Car object. x", " x"},
           Case{"Required. ParamArray, comma-delimited list of Variant values. x", " x"},
           Case{"Optional. Long. Default value is 5. x", " x"},
           Case{"Optional. Double. Default value is 1.5. x", "5. x"},  // at the second full stop
           Case{"Long. x", "Long. x"},  // of a property, which has no word in front
       }) {
    EXPECT_EQ(mergeHeader(c.current, required, false), required + c.merged) << c.current;
  }
  for (const Case& c : {Case{"Integer. The sum", "Long. The sum"},
                        Case{"ADODB.Field object. x", "Long.Field object. x"}}) {
    EXPECT_EQ(mergeHeader(c.current, "Long.", true), c.merged) << c.current;
  }
  for (const std::string no : {"", "1a", "a-b", " object", "A object object"}) {
    EXPECT_FALSE(isTypeWord(no)) << no;
  }
}

TEST(ParameterUpdate, FollowsTheDeclaration) {
  CommentFields fields;
  fields.returns = "Long. x";
  fields.parameters = {"old\r\nRequired. Long. gone", "b\r\nRequired. Long. kept",
                       "B\r\nanother case"};
  fields.settingsLists = {FieldList{"old\r\nA\r\n1\r\n"}, FieldList{"b\r\nA\r\n1\r\n"},
                          FieldList{"B\r\nA\r\n1\r\n"}};
  const CommentFields gone =
      updateParameters(fields, {{"new\r\nRequired. Long.", "b\r\nRequired. Byte."}, ""});
  EXPECT_EQ(fields.returns, "");
  EXPECT_EQ(fields.parameters, (FieldList{"new\r\nRequired. Long.", "b\r\nRequired. Byte. kept"}));
  EXPECT_EQ(fields.settingsLists, (SettingTables{FieldList{"b\r\nA\r\n1\r\n"}, {}, {}}));
  EXPECT_EQ(join(composeComment(gone, layoutOf(0, 0)), "|"),
            "@param        old  gone|@param        B another case|@set          old A 1 |"
            "@set          B A 1 |@return        x");
}

TEST(SettingTables, TheLastThatWasStoredStandsFirst) {
  SettingTables tables;
  for (const char* name : {"a", "b", "c", "d"}) {
    storeParameterSettings(tables, name, {{"K", "1", "x"}});
  }
  storeParameterSettings(tables, "b", {});
  EXPECT_EQ(tables, (SettingTables{FieldList{"c\r\nK\r\n1\r\nx"}, {"a\r\nK\r\n1\r\nx"}, {}}));
}

}  // namespace
}  // namespace tamrikon
