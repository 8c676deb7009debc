#include "comments/skeleton.h"

#include <gtest/gtest.h>

namespace tamrikon {
namespace {

using Lines = std::vector<std::string>;

ProcDefinition parsed(const char* line) {
  ProcDefinition definition;
  definition.pLine = line;
  definition.parse();
  return definition;
}

ProjectSettings nothingOn() {
  ProjectSettings settings;
  settings.addSee = settings.addParam = settings.addReturn = settings.addDescription =
      settings.addRem = false;
  return settings;
}

TEST(Skeleton, FillsInWhatTheDeclarationTells) {
  const ProjectSettings settings;
  EXPECT_EQ(procedureSkeleton("", parsed("Function F(a As Long, Optional b As Form = x) As Long"),
                              ArgumentStyle::withPresence, settings),
            (Lines{"", "@param        a Required. Long.",
                   "@param        b Optional. Form object. Default value is x.",
                   "@return       Long.", "@see          ", "@rem          "}));
  EXPECT_EQ(procedureSkeleton("Line\r\nbreak", parsed("Property Let P(i As long, ParamArray r())"),
                              ArgumentStyle::plain, settings),
            (Lines{"Line\r\nbreak", "@param        i long object.",
                   "@param        r() ParamArray, comma-delimited list of Variant values.",
                   "@see          ", "@rem          "}));
}

TEST(Skeleton, AddsTheTagsThatTheSettingsWant) {
  const ProcDefinition function = parsed("Function F(a) As Long");
  ProjectSettings settings = nothingOn();
  EXPECT_EQ(procedureSkeleton("text", function, ArgumentStyle::plain, settings), Lines{""});

  settings.addSame = settings.addAuthor = settings.addRevision = settings.addVersion =
      settings.addIncludeSource = true;
  settings.addUser.fill(true);
  settings.userName = {"u", "v", "abcdefghijklm", "abcdefghijklmn", "\u00FC\u00FCcdefghijkl"};
  settings.userDefault = {"", "1", "2", "3", "4"};
  EXPECT_EQ(procedureSkeleton("text", function, ArgumentStyle::plain, settings),
            (Lines{"", "@same         ", "@author       ", "@revision     ", "@version      ",
                   "@includesource yes", "@u            ", "@v            1", "@abcdefghijklm 2",
                   "@abcdefghijklmn 3", "@\u00FC\u00FCcdefghijkl 4"}));
}

TEST(Skeleton, DescribesTheLastArgument) {
  const ProcDefinition let = parsed("Property Let P(i As Long, Optional vData As String)");
  const LastArgument last = lastArgument(let, ProjectSettings());
  EXPECT_EQ(last.count, 2u);
  EXPECT_EQ(last.line, "@param        vData String.");
  EXPECT_EQ(lastArgument(let, nothingOn()).line, std::nullopt);
  EXPECT_EQ(lastArgument(parsed("Public Count As Long"), ProjectSettings()).line, std::nullopt);
}

}  // namespace
}  // namespace tamrikon
