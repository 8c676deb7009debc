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
                           "Type=Exe\nModule=Demo; Demo.bas\nRelatedDoc=Doc.txt\nModule=More; More.bas\n");
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

TEST_F(SettingsCommandTest, TakesOnlyWhatASettingCanHave) {
  using Case = std::tuple<std::string, int, std::string, std::string>;
  for (const auto& [argument, status, key, text] : {
           Case{"addSee=No", 0, "addSee", "0"},
           Case{"comPrivate=true", 0, "comPrivate", "1"},
           Case{"addSee=off", 2, "addSee", "'off' is none of 1, yes, true, 0, no and false"},
           Case{"addSee=", 2, "addSee", "'' is none of 1"},
           Case{"comPrivte=1", 2, "comPrivate", "(did you mean 'comPrivate'?)"},
           Case{"user1Default=a\nb", 2, "user1Default", "only titlePageText can have several"},
           Case{"titlePageText=a\nb\r\rc=1\r\nd", 0, "titlePageText",
                "a^tmkEOL^b^tmkEOL^^tmkEOL^c=1^tmkEOL^d"},
           Case{"templatePath=htlm", 1, "templatePath", "/htlm.tmkt (did you mean 'html.tmkt'?)"},
           Case{"templatePath=html", 0, "templatePath", "html.tmkt"},
           Case{"templateFolder=" + folder_.path(), 1, "templatePath", "no template chm.tmkt in "},
       }) {
    std::filesystem::remove(folder_ / "DEMO.tamrik");
    const std::string before = valueOf(key);
    const ProgramRun run({"settings", project_, argument});
    EXPECT_EQ(run.status, status) << argument;
    EXPECT_EQ(valueOf(key), status == 0 ? text : before) << argument;
    EXPECT_EQ(run.err.find(text) != std::string::npos, status != 0) << run.err;
  }
}

TEST_F(SettingsCommandTest, TellsOfModulesThatCameSinceUnlessTheyAreLeftOutOnPurpose) {
  folder_.put("t.tmkt", "");
  const auto warnings = [&](const std::vector<std::string>& more = {}) {
    std::vector<std::string> arguments = {"compile",           project_,     "--output",
                                          folder_ / "out",     "--template", folder_ / "t.tmkt",
                                          "--no-exec", "--fail-on-warnings"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    const ProgramRun run(arguments);
    EXPECT_EQ(run.status == 3, run.err.starts_with("warning: ")) << run.err;
    return run.err.substr(0, run.err.find(','));
  };
  const std::string saved = "\r\ncomModules = Demo";
  EXPECT_EQ(warnings(), "") << "without a file all are documented";
  EXPECT_EQ(ProgramRun({"settings", project_, "comModules=Demo"}).status, 0);
  EXPECT_EQ(warnings(), "warning: module More isn't documented");
  EXPECT_EQ(warnings({"--add-modules"}), "");
  EXPECT_EQ(warnings({"--set", "comModules=Demo"}), "");
  EXPECT_TRUE(folder_.get("DEMO.tamrik").ends_with(saved)) << "a compile saves nothing";
  EXPECT_EQ(ProgramRun({"settings", project_, "--leave-out-modules"}).status, 0);
  EXPECT_EQ(warnings(), "");
  EXPECT_EQ(ProgramRun({"settings", project_, "addSee=1"}).status, 0);
  EXPECT_TRUE(folder_.get("DEMO.tamrik").ends_with(saved + "\r\n#left out: More"));
  EXPECT_EQ(ProgramRun({"settings", project_, "comModules=More", "--add-modules"}).status, 0);
  EXPECT_TRUE(folder_.get("DEMO.tamrik").ends_with("\r\ncomModules = More\r\ncomModules = Demo"));
}

TEST_F(SettingsCommandTest, TakesAFileWholeOrNotAtAll) {
  using Case = std::tuple<const char*, std::string, const char*, const char*>;
  const std::string header = std::string(kHeader) + "\n";
  for (const auto& [name, text, addSee, modules] : {
           Case{"taken", header + "addSee=0\n no sign \n\ncomModules = MORE\ncomModules = gone\n",
                "0", "More"},
           Case{"no module selected", header + "addSee = 0", "0", ""},
           Case{"anything but 0 is true", header + "addSee =", "1", ""},
           Case{", line 3: there is no setting 'new';", header + "addSee = 0\nnew = 1", "1",
                "Demo,More"},
           Case{", line 4: there is no setting 'AddRem' (did you mean 'addRem'?);",
                header + "\naddSee = 0\nAddRem = 1", "1", "Demo,More"},
           Case{", line 3: indentMode: 'x' is no number from", header + "addSee=0\nindentMode=x",
                "1", "Demo,More"},
           Case{"signs", header + "addSee = 0\nindentMode = +1\nwordWrapLength=-32768", "0", ""},
           Case{" is empty; the", "", "1", "Demo,More"},
           Case{" isn't a settings file: line 1", std::string("\0\xFF\x81\n", 4), "1", "Demo,More"},
       }) {
    SCOPED_TRACE(name);
    folder_.put("DEMO.tamrik", text);
    EXPECT_EQ(valueOf("addSee"), addSee);
    EXPECT_EQ(valueOf("comModules"), modules);
    const std::string warning = ProgramRun({"settings", project_}).err;
    const std::string start = "warning: " + folder_ / "DEMO.tamrik" + name;
    const bool isTaken = addSee[0] == '0' || *modules == '\0';
    EXPECT_EQ(warning.substr(0, start.size()), isTaken ? "" : start);
  }
}

TEST_F(SettingsCommandTest, KeepsTheCodePageBesideTheProject) {
  const ProgramRun kept({"settings", project_, "--keep-codepage", "1251"});
  EXPECT_EQ(kept.status, 0);
  EXPECT_EQ(kept.out + kept.err, "");
  EXPECT_EQ(folder_.get("DEMO.codepage"), "1251\n");
  EXPECT_EQ(ProgramRun({"settings", project_, "--keep-codepage", "1"}).status, 2);
  const ProgramRun missing({"settings", project_, "comModules=More,Nowhere"});
  EXPECT_EQ(missing.err, "warning: comModules: there is no module Nowhere\n");
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
