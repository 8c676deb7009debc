#include "source/source_file.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "host/source_text.h"
#include "source/member_attributes.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

const CodePage& page(int number = 1252) {
  return *CodePage::find(number);
}

using test::saved;
using test::TextCase;
using test::visible;

TEST(SourceFile, ShowsTheCodeBehindTheHead) {
  test::forEachCase("host/visible-code.txt", {"bytes", "visible"}, [](const TextCase& c) {
    const SourceFile file(c["bytes"], page());
    EXPECT_EQ(visible(file), c["visible"]);
    EXPECT_EQ(saved(file), c["bytes"]);
  });
}

TEST(SourceFile, KeepsTheBytesOfWhatIsNotEdited) {
  const auto check = [](const TextCase& c) {
    SourceFile file(c["bytes"], page(c.number("codePage")));
    EXPECT_EQ(saved(file), c["bytes"]);
    EXPECT_FALSE(file.isChanged());
    file.insertLines(1, c["added"]);
    EXPECT_TRUE(file.isChanged());
    EXPECT_EQ(saved(file), c["saved"]);
  };
  test::forEachCase("host/kept-bytes.txt", {"codePage", "bytes", "added", "saved"}, check);
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
