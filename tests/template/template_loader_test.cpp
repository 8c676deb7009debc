#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <tuple>

#include "support/text_cases.h"
#include "template/macro_fixture.h"

namespace tamrikon {
namespace {

using test::TextCase;

/// Answers the first `repeats` file errors with Retry, the next one with Cancel.
struct Reporter : FileErrorReporter {
  FileErrorAnswer reportFileError(const std::string&, std::string_view verb,
                                  FileError error) override {
    EXPECT_EQ(verb, "reading");
    errors.push_back(error);
    return repeats-- > 0 ? FileErrorAnswer::repeat : FileErrorAnswer::giveUp;
  }
  FileErrorAnswer reportFault(const std::string& path, std::string_view verb, FileError error,
                              const std::string& what) override {
    said = what;
    return reportFileError(path, verb, error);
  }
  std::string said;
  int repeats = 1'000'000;
  std::vector<FileError> errors;
};

class LoadSrc : public testing::Test {
 protected:
  void SetUp() override {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    path_ = testing::TempDir() + "tamrikon_" + info->name() + ".tmkt";
  }
  void TearDown() override { std::filesystem::remove(path_); }

  int load(const std::string& bytes, bool silent = true) {
    std::ofstream(path_, std::ios::binary) << bytes;
    return macros_.table.loadSrc(path_, silent, files_);
  }
  std::string body(std::string_view name) { return macros_.table.getMacroBody(name); }

  std::string path_;
  Macros macros_;
  Reporter reporter_;
  TextFiles files_{nativeFileSystem(), reporter_};
};

TEST_F(LoadSrc, ReadsDefinitions) {
  const auto check = [this](const TextCase& c) {
    macros_.log.messages.clear();
    EXPECT_EQ(load(c["file"]), 0);
    EXPECT_EQ(body(c["macro"]), lines(c["expected"]));
    EXPECT_EQ(macros_.log.messages, withPrefix(kConfig, c.list("warnings")));
  };
  test::forEachCase("template/definitions.txt", {"file", "macro", "expected", "warnings"}, check);
}

TEST_F(LoadSrc, ReportsASectionWithoutEnd) {
  EXPECT_EQ(load("$A$ a\n\n  $tamrik-x$\n$B$ b\n$end-tamrik-X$\n"), 0);
  EXPECT_EQ(body("tamrik-x") + body("A") + body("B"), "$tamrik-x$a$B$");
  EXPECT_EQ(macros_.log.messages,
            std::vector{"ERROR (config file): Error in configuration file " + path_ +
                        " on line 3. Terminating tag $end-tamrik-x$ missing."});
}

TEST_F(LoadSrc, AddsTheCharacters) {
  using Case = std::tuple<int, const char*, std::string>;
  const Case cases[] = {
      {1252, "CHR0", std::string(1, '\0')}, {1252, "chr65", "A"},
      {1252, "CHR128", "\xE2\x82\xAC"},     {1251, "CHR255", "\xD1\x8F"},
      {932, "CHR177", "\xEF\xBD\xB1"},      {1252, "CHR256", "$CHR256$"},
  };
  for (const auto& [codePage, macro, expected] : cases) {
    files_.setCodePage(*CodePage::find(codePage));
    EXPECT_EQ(load("no definitions"), 0);
    EXPECT_EQ(body(macro), expected) << macro << " of " << codePage;
  }
}

TEST_F(LoadSrc, NamesDefinedTwiceAreFailures) {
  const std::string twice = "$A$ 1\n$a$ 2\n$B$ 3\n$REPLACE-TABLE$ a b\n";
  EXPECT_EQ(load(twice), 3);
  EXPECT_EQ(body("A") + body("B") + body("CHR65"), "1$B$$CHR65$");

  EXPECT_EQ(load(twice, false), 0);  // Retry goes on with the next definition
  EXPECT_EQ(body("A") + body("B") + body("CHR65"), "13A");
  EXPECT_EQ(reporter_.errors, std::vector{FileError::keyExists});
  EXPECT_EQ(reporter_.said,
            "The macro a is defined on line 1 and again on line 2; the first one counts.");

  reporter_.repeats = 0;
  EXPECT_EQ(load(twice, false), 2);
  EXPECT_EQ(load("$CHR65$ a"), 3);
  EXPECT_EQ(load("\n$chr65$ a", false), 2);
  EXPECT_EQ(reporter_.said, "The macro CHR65 is the program's own; line 2 defines it.");
}

TEST_F(LoadSrc, MissingFileForgetsTheOldTemplate) {
  EXPECT_EQ(load("$A$ a"), 0);
  reporter_.repeats = 1;
  EXPECT_EQ(macros_.table.loadSrc(path_ + ".not", false, files_), 2);
  EXPECT_EQ(reporter_.errors, (std::vector{FileError::fileNotFound, FileError::fileNotFound}));
  EXPECT_EQ(macros_.table.loadSrc(path_ + ".not", true, files_), 3);
  EXPECT_EQ(body("A"), "$A$");
}

TEST_F(LoadSrc, ReadsTheReplaceTable) {
  EXPECT_EQ(load("$REPLACE-TABLE$ $LT$ &lt;  x $CHR36$ S$CHR32$ odd\n$LT$ $CHR60$"), 0);
  EXPECT_EQ(macros_.log.messages, std::vector{wrongName("$")});
  EXPECT_EQ(macros_.table.parseReplaceMacro("$LT$ $$  $NO$"),
            (std::vector<std::string>{"<", "$$", "", "$NO$"}));

  macros_.set("MEMBER-NAME", "<$EOL$<$ <");
  macros_.set("MEMBER-USER1", "<");
  macros_.set("EOL", "<br>$MEMBER-USER1$");
  macros_.set("other", "<");
  EXPECT_EQ(macros_.expand("$MEMBER-NAME$"), "<<br><<$ <");
  // Stretch by stretch, in read-only macros alone, behind a lone "$" too.
  EXPECT_EQ(macros_.expand("<$REPLACE-ON$$MEMBER-NAME$$other$$member-name$$REPLACE-OFF$"),
            "<&lt;<br>&lt;&lt;S  &lt;<<<br>&lt;<$ <");
  macros_.setList("PARAM-LIST", {"<|<"});
  macros_.set("MEMBER-REMARKS", "<$DOLIST$ $PARAM-LIST$|<$LIST-ITEM-LABEL$$END-DOLIST$<");
  EXPECT_EQ(macros_.expand("$REPLACE-ON$$MEMBER-REMARKS$"), "&lt;<&lt;&lt;");
  macros_.table.resetRunState();
  EXPECT_EQ(macros_.expand("$MEMBER-USER1$"), "<");
}

TEST_F(LoadSrc, LimitsWhatCommentsCall) {
  load(
      "$COMMENT-MACROS$ EOL Code  MEMBER-NAME\n$REPLACE-TABLE$ < &lt; $${ &#36;{\n$EOL$ <br>\n"
      "$CODE$ <pre>\n$BAD$ <b>\n$MEMBER-EXT$ <x>");
  MacroTable& table = macros_.table;
  const auto check = [&](const TextCase& c) {
    const std::string text = c["text"];
    table.setProjectText("MEMBER-NAME", "<n>");
    table.setCommentText("MEMBER-TODO", text);
    EXPECT_EQ(table.getMacroBody("MEMBER-TODO"), text);
    EXPECT_EQ(macros_.expand("$REPLACE-ON$$MEMBER-TODO$"), c["asComment"]);
    table.setProjectText("MEMBER-TODO", text);
    EXPECT_EQ(macros_.expand("$MEMBER-TODO$"), c["asName"]);
    macros_.setList("SEE-LINK-LIST", {"\"" + text + "|" + text});
    EXPECT_EQ(macros_.expand("$DOLIST$ $SEE-LINK-LIST$|$LIST-ITEM$$LIST-ITEM-LABEL$$END-DOLIST$"),
              c["asName"] + c["asComment"]);
  };
  test::forEachCase("template/comment-texts.txt", {"text", "asComment", "asName"}, check);
  EXPECT_TRUE(macros_.log.messages.empty());
}

TEST_F(LoadSrc, DropsWhatItCantTranslate) {
  load("$COMMENT-MACROS$\n$REPLACE-TABLE$ < &lt;");
  macros_.table.setBudget(ExpansionBudget(100, 65));
  macros_.table.setCommentText("MEMBER-NAME", "<<<<");
  EXPECT_EQ(macros_.expand("$REPLACE-ON$$MEMBER-NAME$$MEMBER-NAME$."), "&lt;&lt;&lt;&lt;.");
}

}  // namespace
}  // namespace tamrikon
