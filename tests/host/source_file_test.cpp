#include "host/source_file.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <tuple>

#include "host/member_attributes.h"
#include "host/source_text.h"

namespace tamrikon {
namespace {

const CodePage& page(int number = 1252) {
  return *CodePage::find(number);
}

using test::saved;
using test::visible;

TEST(SourceFile, ShowsTheCodeBehindTheHead) {
  using Case = std::array<const char*, 3>;
  for (const auto& [name, bytes, expected] : {
           Case{"empty", "", ""},
           Case{"line ends of all kinds", "a\rb\nc\r\n\r\rd\n\r", "a|b|c|||d|"},
           Case{"nested blocks, texts that look like their ends",
                "VERSION 5.00\r\nObject = \"{1}#2.0#0\"; \"X.OCX\"\r\nBegin VB.Form a \r\n  "
                "Caption = \"\r\n  BeginProperty Font {1} \r\n  endproperty\r\n  begin "
                "VB.Label b\r\n\tEnd &all\r\n\tEnd\t\r\n  Begin =\r\n  END\r\nEnd\r\nAttribute "
                "VB_Name = \"a\"\r\nx\r\n",
                "x"},
           Case{"blank line ends the head",
                "VERSION 5.00\r\n\r\nAttribute VB_Name = \"a\"\r\nx\r\n", "|x"},
           Case{"hidden lines",
                "Sub A()\r\n\tattribute A.VB_HelpID = _\r\n5\r\nAttribute A.x = 1\r\nAttributed = "
                "1\r\nAttribute\r\nEnd Sub\r\n",
                "Sub A()|Attributed = 1|Attribute|End Sub"},
           Case{"tabs in front of lines",
                "BEGIN\n\tX\nEND\n\tSub A(b, _\r\n  \t c\t)\n\tAttribute A.x = 1\n \t\t\n\t",
                "    Sub A(b, _|     c\t)|        |    "},
       }) {
    SCOPED_TRACE(name);
    const SourceFile file(bytes, page());
    EXPECT_EQ(visible(file), expected);
    EXPECT_EQ(saved(file), bytes);
  }
}

TEST(SourceFile, KeepsTheBytesOfWhatIsNotEdited) {
  using Case = std::tuple<const char*, int, const char*, const char*, const char*>;
  for (const auto& [name, number, bytes, added, expected] : {
           Case{"UTF-8", 1251, "\xC3\xA4\n", "ж", "\xD0\xB6\n\xC3\xA4\n"},
           Case{"mark and bytes that aren't UTF-8", 1252, "\xEF\xBB\xBF\xFF\n", "ж",
                "\xEF\xBB\xBF\xD0\xB6\n\xFF\n"},
           Case{"pairs that another pair equals", 932, "' \x87\x90\xED\x40\x81\n\x83\x5C _\r\n",
                "表", "\x95\x5C\n' \x87\x90\xED\x40\x81\n\x83\x5C _\r\n"},
           Case{"no line end at all", 1252, "a", "b\nc", "b\r\nc\r\na"},
           Case{"tabs in front of lines", 1251, "\tx\n\t\xE6\n", "\t\tж",
                "        \xE6\n\tx\n\t\xE6\n"},
       }) {
    SCOPED_TRACE(name);
    SourceFile file(bytes, page(number));
    EXPECT_EQ(saved(file), bytes);
    EXPECT_FALSE(file.isChanged());
    file.insertLines(1, added);
    EXPECT_TRUE(file.isChanged());
    EXPECT_EQ(saved(file), expected);
  }
}

TEST(SourceFile, EditsAroundHiddenLines) {
  const std::string bytes = "a\nAttribute a.x = 1\nb\nc\nAttribute c.x = 1";
  using Case = std::tuple<const char*, int, int, const char*, const char*>;
  for (const auto& [name, line, deleted, inserted, expected] : {
           Case{"line end at the end of the text", 1, 0, "n\r",
                "n\n\na\nAttribute a.x = 1\nb\nc\nAttribute c.x = 1"},
           Case{"insert hidden", 2, 0, "Attribute a.y = _\n2\nn",
                "a\nAttribute a.x = 1\nAttribute a.y = _\n2\nn\nb\nc\nAttribute c.x = 1"},
           Case{"delete with hidden", 1, 1, nullptr, "b\nc\nAttribute c.x = 1"},
           Case{"replace", 3, 1, "n", "a\nAttribute a.x = 1\nb\nn\n"},
       }) {
    SCOPED_TRACE(name);
    SourceFile file(bytes, page());
    if (deleted > 0) file.deleteLines(line, deleted);
    if (inserted != nullptr) file.insertLines(line, inserted);
    EXPECT_EQ(saved(file), expected);
    const SourceFile again(saved(file), page());
    EXPECT_EQ(visible(file), visible(again));
  }
  SourceFile file(bytes, page());
  file.replaceLines(2, 2, "bc");
  EXPECT_EQ(saved(file), "a\nAttribute a.x = 1\nbc\nAttribute c.x = 1") << "joined by typing";
}

TEST(MemberAttributes, ReadsTheFirstThatIsNotEmpty) {
  SourceFile file(
      "Attribute VB_Name = \"Mod\"\r\nAttribute VB_Description = \"of \"\"it\"\"\"\r\n"
      "Attribute VB_HelpID = 12\r\nProperty Let A(v)\r\nAttribute A.VB_Description = \"\"\r\n"
      "Attribute A.VB_HelpID = -1\r\nProperty Get A()\r\n"
      "attribute a.vb_description=  \"one\\r\\ntwo\\n\" _\r\n  ' x\r\nAttribute A.VB_HelpID = 7\r\n"
      "Attribute A.VB_VarDescription = \"no\"\r\nDim v\r\nAttribute v.VB_VarHelpID = -1\r\n"
      "Attribute [x/y.z].VB_VarDescription = \"br\"\r\nAttribute VB_Description = \"hidden\"\r\n"
      "Attribute v.VB_VarHelpID = 99999999999\r\nAttribute v.VB_VarHelpID = 3\r\n",
      page());
  MemberAttributes attributes(file);
  EXPECT_EQ(attributes.moduleName(), "Mod");
  EXPECT_EQ(attributes.description({}), "of \"it\"");
  EXPECT_EQ(attributes.helpContextID({}), 12);
  EXPECT_EQ(attributes.description({"A", "A"}), "one\r\ntwo\\n");
  EXPECT_EQ(attributes.helpContextID({"A", "A"}), 7);
  EXPECT_EQ(attributes.helpContextID({"v", "v", true}), 3);
  EXPECT_EQ(attributes.helpContextID({"v", "v", false}), 0);
  EXPECT_EQ(attributes.description({"x_y.z", "x/y.z", true}), "br");
}

TEST(MemberAttributes, WritesIntoTheHeadAndBehindDeclarations) {
  SourceFile file(
      "VERSION 1.0 CLASS\nBEGIN\nEND\nAttribute VB_Name = \"M\"\nDim v\n"
      "Attribute v.VB_UserMemId = 0\nProperty Get P( _\n x)\nAttribute P.VB_Description = \"old\"\n"
      "Property Let P(x)\n  Attribute p.VB_Description =  _\n\"old\"\nAttribute P.VB_HelpID = -1\n",
      page());
  MemberAttributes attributes(file);
  attributes.setDescription({}, "a \"b\"");
  attributes.setHelpContextID({}, 0);
  attributes.setDescription({"v", "v", true, 1}, "");
  attributes.setHelpContextID({"v", "v", true, 1}, 5);
  attributes.setDescription({"P", "P", false, 3}, "one\rtwo\nthree\r\n");
  attributes.setHelpContextID({"P", "P", false, 3}, 0);
  EXPECT_EQ(saved(file),
            "VERSION 1.0 CLASS\nBEGIN\nEND\nAttribute VB_Name = \"M\"\n"
            "Attribute VB_Description = \"a \"\"b\"\"\"\nDim v\nAttribute v.VB_VarHelpID = 5\n"
            "Attribute v.VB_UserMemId = 0\nProperty Get P( _\n x)\n"
            "Attribute P.VB_Description = \"one\\r\\ntwo\\r\\nthree\\r\\n\"\n"
            "Property Let P(x)\n"
            "  Attribute p.VB_Description =  \"one\\r\\ntwo\\r\\nthree\\r\\n\"\n"
            "Attribute P.VB_HelpID = -1\n");
}

TEST(MemberAttributes, FindsThemAgainAfterAnEdit) {
  SourceFile file("a\nAttribute a.VB_HelpID = 1\nb\n", page());
  MemberAttributes attributes(file);
  EXPECT_EQ(attributes.helpContextID({"a", "a"}), 1);
  file.deleteLines(1, 1);
  EXPECT_EQ(attributes.helpContextID({"a", "a"}), 0);
  attributes.setHelpContextID({"b", "b", false, 1}, 2);
  file.insertLines(1, "c");
  attributes.setHelpContextID({"b", "b", false, 2}, 3);
  EXPECT_EQ(saved(file), "c\nb\nAttribute b.VB_HelpID = 3\n");
}

TEST(MemberAttributes, HoldsNumbersThatNobodyWantsInTheFile) {
  SourceFile file("a\nAttribute a.VB_HelpID = 1\n", page());
  MemberAttributes attributes(file);
  const AttributeOwner a{"a", "a", false, 1};
  attributes.holdHelpContextID(a, 7);
  EXPECT_EQ(attributes.helpContextID({"A", "a"}), 7);
  EXPECT_FALSE(file.isChanged() || file.history().canUndo());
  attributes.setHelpContextID(a, 1);
  EXPECT_EQ(attributes.helpContextID(a), 1);
  attributes.writeHeldIds();
  attributes.holdHelpContextID(a, 8);
  EXPECT_EQ(saved(file), "a\nAttribute a.VB_HelpID = 8\n");
}

TEST(SourceFile, KnowsWhatHasChangedSinceTheLastSave) {
  SourceFile file("a\n", page());
  MemberAttributes attributes(file);
  const auto changed = [&] { return file.history().changedSubjects().to_string(); };
  attributes.setHelpContextID({"a", "a", false, 1}, 2);
  EXPECT_EQ(changed(), "100");
  file.insertLines(1, "b");
  attributes.setDescription({"a", "a", false, 2}, "c");
  EXPECT_EQ(changed(), "111");
  file.setSaved();
  EXPECT_EQ(changed(), "000");
  file.undo();
  EXPECT_EQ(changed(), "010");
  attributes.setHelpContextID({"a", "a", false, 2}, 3);  // the way back to what is saved is gone
  EXPECT_EQ(changed(), "101");
}

TEST(SourceFile, HeadWithoutLineEndGrows) {
  SourceFile file("VERSION 1.0 CLASS", page());
  MemberAttributes attributes(file);
  attributes.setHelpContextID({}, 4);
  file.insertLines(1, "x");
  EXPECT_EQ(saved(file), "VERSION 1.0 CLASS\r\nAttribute VB_HelpID = 4\r\nx\r\n");
}

}  // namespace
}  // namespace tamrikon
