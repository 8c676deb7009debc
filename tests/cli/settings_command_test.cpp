#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

#include "base/text.h"
#include "support/program_run.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::ProgramRun;

constexpr const char* kHeader = "#Tamrikon Project Settings#";

class SettingsCommandTest : public testing::Test {
 protected:
  SettingsCommandTest() {
    folder_.put("Demo.bas", "Sub A()\nEnd Sub\n");
    folder_.put("More.bas", "Sub B()\nEnd Sub\n");
    folder_.put("Doc.txt", "");
    project_ = folder_.put("DEMO.VBP",
                           "Module=Demo; Demo.bas\nRelatedDoc=Doc.txt\nModule=More; More.bas\n");
  }

  /// The value that is printed for `key`; of comModules, all names.
  std::string valueOf(const std::string& key) {
    const ProgramRun run({"settings", project_});
    std::string values;
    for (const std::string_view line : split(run.out, '\n')) {
      if (!line.starts_with(key + " = ")) continue;
      values += (values.empty() ? "" : ",") + std::string(line.substr(key.size() + 3));
    }
    return values;
  }

  test::TempFolder folder_;
  std::string project_;
};

TEST_F(SettingsCommandTest, PrintsTheDefaultsInTheOrderOfTheFile) {
  const ProgramRun run({"settings", project_});
  EXPECT_EQ(run.status, 0);
  const auto lines = split(run.out, '\n');
  ASSERT_EQ(lines.size(), 52U);  // 49 keys, two modules, the end
  EXPECT_EQ(lines[0], "addSee = 1");
  EXPECT_EQ(valueOf("outputPath"), folder_ / "Tamrik");
  EXPECT_EQ(valueOf("templatePath"), "chm.tmkt");
  EXPECT_EQ(valueOf("comModules"), "Demo,More");
  EXPECT_FALSE(folder_.has("Tamrik")) << "asking changes nothing";
}

TEST_F(SettingsCommandTest, SavesByteForByteWhatItReads) {
  const ProgramRun run({"settings", project_, "titlePageText=one^tmkEOL^ two", "comModules=More",
                        "wordWrapLength=-72", "user2Default=a = b", "user3Name="});
  EXPECT_EQ(run.status, 0) << run.err;
  const std::string saved = folder_.get("DEMO.tamrik");
  EXPECT_TRUE(saved.starts_with(std::string(kHeader) + "\r\naddSee = 1\r\naddParam = 1\r\n"));
  EXPECT_TRUE(saved.ends_with("\r\ntemplatePath = chm.tmkt\r\ncomModules = More"));
  EXPECT_EQ(valueOf("wordWrapLength"), "-72");
  EXPECT_EQ(ProgramRun({"settings", project_, "addSee=1"}).status, 0);
  EXPECT_EQ(folder_.get("DEMO.tamrik"), saved);
}

TEST_F(SettingsCommandTest, TakesAFileWholeOrNotAtAll) {
  using Case = std::tuple<const char*, std::string, const char*, const char*>;
  const std::string header = std::string(kHeader) + "\n";
  for (const auto& [name, text, addSee, modules] : {
           Case{"taken", header + "addSee=0\n no sign \n\ncomModules = MORE\ncomModules = gone\n",
                "0", "More"},
           Case{"no module selected", header + "addSee = 0", "0", ""},
           Case{"anything but 0 is true", header + "addSee =", "1", ""},
           Case{"unknown key", header + "addSee = 0\nnew = 1", "1", "Demo,More"},
           Case{"key in another case", header + "addSee = 0\nAddRem = 1", "1", "Demo,More"},
           Case{"no number", header + "addSee = 0\nindentMode = x", "1", "Demo,More"},
           Case{"signs", header + "addSee = 0\nindentMode = +1\nwordWrapLength=-32768", "0", ""},
           Case{"empty", "", "1", "Demo,More"},
           Case{"junk", std::string("\0\xFF\x81\n", 4), "1", "Demo,More"},
       }) {
    SCOPED_TRACE(name);
    folder_.put("DEMO.tamrik", text);
    EXPECT_EQ(valueOf("addSee"), addSee);
    EXPECT_EQ(valueOf("comModules"), modules);
  }
}

TEST_F(SettingsCommandTest, FallsBackToATemplateThatIsThere) {
  const std::string gone = "\ntemplateFolder = " + folder_.path() + "\ntemplatePath = gone.tmkt";
  folder_.put("DEMO.tamrik", kHeader + gone);
  EXPECT_EQ(valueOf("templatePath"), "chm.tmkt");
  EXPECT_NE(valueOf("templateFolder"), folder_.path());
}

TEST_F(SettingsCommandTest, KeepsTheTextOfAFileThatItCannotUse) {
  folder_.put("DEMO.tamrik", "somebody's notes");
  const ProgramRun run({"settings", project_, "addSee=0"});
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.err.find("DEMO.tamrik isn't a settings file"), std::string::npos);
  EXPECT_EQ(folder_.get("DEMO.tamrik.bak"), "somebody's notes");
  EXPECT_EQ(valueOf("addSee"), "0");
  EXPECT_EQ(ProgramRun({"settings", project_, "addSee=1"}).err, "") << "it is a good one now";
  folder_.put("DEMO.tamrik", "more notes");
  std::filesystem::remove(folder_ / "DEMO.tamrik.bak");
  folder_.put("DEMO.tamrik.bak/in the way", "");
  EXPECT_EQ(ProgramRun({"settings", project_, "addSee=0"}).status, 1);
  EXPECT_EQ(folder_.get("DEMO.tamrik"), "more notes");
}

}  // namespace
}  // namespace tamrikon
