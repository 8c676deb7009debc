// The commands `comment` and `example`, on a class whose hidden lines don't count.
#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

#include "support/program_run.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::ProgramRun;

class SourceCommandsTest : public testing::Test {
 protected:
  /// The text of the class, with these texts above its lines 1, 2, 3, 5 and 8.
  static std::string cart(const std::string& top = "", const std::string& count = "",
                          const std::string& let = "", const std::string& get = "",
                          const std::string& fill = "") {
    return "VERSION 1.0 CLASS\r\nAttribute VB_Name = \"Cart\"\r\n" + top +
           "' All rights reserved.\r\n" + count + "Public Count As Long, Rest As Long\r\n" +
           "Attribute Count.VB_VarDescription = \"Many.\"\r\n" + let +
           "Public Property Let Total(ByVal Value As Long)\r\nEnd Property\r\n" + get +
           "  Public Property Get Total() _\r\n    As Long\r\n  End Property\r\n" + fill +
           "Private Sub Fill()\r\n  s = \"\xE9t\xE9\"\r\nEnd Sub\r\n";
  }

  ProgramRun run(const std::string& command, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {command, project_});
    return ProgramRun(arguments, [](Streams& streams) { streams.outIsTerminal = true; });
  }

  test::TempFolder folder_;
  std::string cartPath_ = folder_.put("Cart.cls", cart());
  std::string tillPath_ = folder_.put("Till.bas", "x = \"\xE9\"\nSub Main()\nEnd Sub\n");
  std::string keptPage_ = folder_.put("Shop.codepage", "1252");
  std::string otherPage_ = folder_.put("Other.codepage", "1252");
  std::string project_ =
      folder_.put("Shop.vbp", "Type=Exe\nClass=Cart; Cart.cls\nModule=Till; Till.bas\n");
};

TEST_F(SourceCommandsTest, FindEachTargetInTheFilesAsTheyWere) {
  const std::string top = "'**\r\n'\r\n'@see\r\n\r\n";
  const std::string count = "'**\r\n'\r\n'@see\r\n";
  const std::string fill = "'**\r\n'\r\n'@see\r\n'@rem\r\n";
  const std::string let = "'**\r\n'\r\n'@param        Value Long.\r\n'@see\r\n'@rem\r\n";
  const std::string get = "  '**\r\n  '\r\n  '@return       Long.\r\n  '@see\r\n  '@rem\r\n";
  using Case = std::tuple<std::vector<std::string>, std::string, std::string>;
  for (const auto& [targets, after, out] : {
           Case{{"Cart"}, cart(top), "Cart\n1 comment inserted in 1 module.\n"},
           Case{{"cart.COUNT'set", "cart.FILL"}, cart("", count, "", "", fill), "Cart.Count\nCar"},
           Case{{"Cart.Total", "Cart:10", "Cart:1", "Cart.Rest", "Cart:6"},
                cart(top, count, let, get, fill),
                "Cart.Total\nCart.Fill\nCart\nCart.Rest\nCart.Total\n5 comments inserted in 1 "},
       }) {
    folder_.put("Cart.cls", cart());
    const ProgramRun result = run("comment", targets);
    EXPECT_EQ(result.err, "");
    EXPECT_TRUE(result.out.starts_with(out)) << result.out;
    EXPECT_EQ(folder_.get("Cart.cls"), after) << targets.front();
  }
}

TEST_F(SourceCommandsTest, ChangeNothingButPrintExamplesOrWhatIsWrong) {
  using Case = std::tuple<const char*, std::vector<std::string>, int, std::string>;
  for (const auto& [command, arguments, status, text] : {
           Case{"comment", {"Cart.Fill", "Bag"}, 1, "'Bag': there is no module 'Bag'"},
           Case{"comment", {"Cart.Gone", "Cart"}, 1, "'Cart.Gone': module Cart has no member"},
           Case{"comment", {"Cart.Fill'get"}, 1, "Fill is no property"},
           Case{"comment", {"Cart:11"}, 1, "'Cart:11': module Cart has no line 11"},
           Case{"comment", {"Cart:0"}, 2, "'Cart:0' is no target"},
           Case{"comment", {"Cart.Total'set"}, 1, "the property Total has no such"},
           Case{"comment", {"--missing", "Cart.Fill"}, 2, "'Cart.Fill' is no module"},
           Case{"example", {"Cart:9"}, 0, "'$CODE$\n'  s = \"été\"\n'$END-CODE$\n"},
           Case{"example", {"Cart:8.13-9.10"}, 0, "\n'Fill()$EOL$\n'  s = \"ét\n'$E"},
           Case{"example", {"Cart:10-11"}, 1, "'Cart:10-11': module Cart has 10 lines"},
           Case{"example", {"Cart:2.1-3"}, 2, "'Cart:2.1-3' is no"},
       }) {
    const ProgramRun result = run(command, arguments);
    EXPECT_EQ(result.status, status) << text;
    const std::string& printed = status == 0 ? result.out : result.err;
    EXPECT_NE(printed.find(text), std::string::npos) << text << printed;
    EXPECT_EQ(folder_.get("Cart.cls"), cart()) << text;
  }
}

TEST_F(SourceCommandsTest, DryRunPrintsBytesForPatchAndTextForPeople) {
  const std::filesystem::path home = std::filesystem::current_path();
  std::filesystem::current_path(folder_.path());
  const ProgramRun piped({"comment", "Shop.vbp", "Till.Main", "--dry-run"});
  std::filesystem::current_path(home);
  EXPECT_EQ(piped.out,
            "--- Till.bas\n+++ Till.bas\n@@ -1,3 +1,7 @@\n x = \"\xE9\"\n+'**\n+'\n"
            "+'@see\n+'@rem\n Sub Main()\n End Sub\n");
  const ProgramRun shown = run("comment", {"Till.Main", "--dry-run"});
  EXPECT_NE(shown.out.find("\n x = \"é\"\n+'**\n"), std::string::npos) << shown.out;
  EXPECT_EQ(folder_.get("Till.bas"), "x = \"\xE9\"\nSub Main()\nEnd Sub\n");
}

TEST_F(SourceCommandsTest, DryRunNamesFilesSoThatPatchFindsThem) {
  folder_.put("sub/a/Own.bas", "Sub Own()\nEnd Sub\n");
  folder_.put("sub/Far.bas", "Sub Far()\nEnd Sub\n");
  const std::string project =
      folder_.put("sub/a/P.vbp", "Type=Exe\nModule=Own; Own.bas\nModule=Far; ..\\Far.bas\n");
  const std::filesystem::path home = std::filesystem::current_path();
  for (const auto& [here, way, target] : {std::tuple("", ".", "Far.Far"),
                                          {"sub/a", ".", "Own.Own"},
                                          {"sub/a", "..", "Far.Far"},
                                          {"sub/a/b", "../..", "Far.Far"}}) {
    std::filesystem::create_directories(folder_ / here);
    std::filesystem::current_path(folder_ / here);
    const ProgramRun run({"comment", project, target, "--dry-run"});
    const std::string patch = "patch -d " + std::string(way) + " -p0";
    EXPECT_EQ(run.err.find('`' + patch + '`') != std::string::npos, way[1] == '.') << run.err;
    folder_.put("diff", run.out);
    EXPECT_EQ(std::system((patch + " --dry-run -s < " + folder_ / "diff").c_str()), 0) << run.out;
    std::filesystem::current_path(home);
  }
}

TEST_F(SourceCommandsTest, RefuseToWriteIntoFilesThatCannotBeUnderstood) {
  for (const auto& [text, why] : {
           std::pair(std::string("VERSION 5.00\nBegin VB.Form F\n  Begin X y\n  End\nSub A()\n"),
                     "line 2: its Begin has no End"),
           {std::string("a\n\0", 3), "line 2: it has a null character"},
       }) {
    const std::string path = folder_.put("F.frm", text);
    folder_.put("Shop.vbp", "Type=Exe\nForm=F.frm\n");
    const ProgramRun result = run("comment", {"--missing"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err.find("tamrikon: cannot save " + path + ", " + why), 0U) << result.err;
    EXPECT_EQ(folder_.get("F.frm"), text);
  }
}

TEST_F(SourceCommandsTest, ReportWhatCannotBeSaved) {
  folder_.put("Shop.tamrik", "#Tamrikon Project Settings#\naddUser1=1\nuser1Default=\xD1\x84\n");
  const ProgramRun result = run("comment", {"Cart.Fill", "Till:1"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out, "Till\n1 comment inserted in 1 module.\n") << "that was saved";
  EXPECT_NE(result.err.find("cannot save " + cartPath_), std::string::npos) << result.err;
  EXPECT_EQ(folder_.get("Cart.cls"), cart());
}

TEST_F(SourceCommandsTest, WorkOnTheProjectOfAGroupThatStartsUnlessTheyAreStopped) {
  folder_.put("Other.vbp", "Type=Exe\nModule=Till; Till.bas\n");
  project_ = folder_.put("All.vbg", "VBGROUP 5.0\nProject=Other.vbp\nStartupProject=Shop.vbp\n");
  const ProgramRun stopped({"comment", project_, "--missing"},
                           [](Streams& streams) { streams.isInterrupted = [] { return true; }; });
  EXPECT_EQ(stopped.err, "tamrikon: stopped; nothing was changed\n");
  EXPECT_EQ(run("comment", {"--missing"}).out,
            "Cart\nCart.Count\nCart.Total\nTill.Main\n4 comments inserted in 2 modules.\n");
}

TEST_F(SourceCommandsTest, WorkOnAllProjectsOfAGroupIfTheyShall) {
  folder_.put("New.bas", "Sub Fresh()\nEnd Sub\n");
  folder_.put("Other.vbp", "Type=Exe\nModule=Till; Till.bas\nModule=New; New.bas\n");
  project_ = folder_.put("All.vbg", "VBGROUP 5.0\nStartupProject=Shop.vbp\nProject=Other.vbp\n");
  EXPECT_EQ(run("comment", {"New.Fresh", "Till", "--all-projects"}).out,
            "Till\nNew.Fresh\n2 comments inserted in 2 modules.\n")
      << "the file that both projects have gets one";
  EXPECT_EQ(run("comment", {"Gone", "--all-projects"}).err,
            "tamrikon: 'Gone': there is no module 'Gone'\n");
  EXPECT_EQ(run("comment", {"--missing", "--all-projects"}).out,
            "Cart\nCart.Count\nCart.Total\nTill.Main\n4 comments inserted in 2 modules.\n");
  EXPECT_EQ(run("settings", {"wordWrapLength=61", "--all-projects"}).status, 0);
  for (const char* file : {"Shop.tamrik", "Other.tamrik"}) {
    EXPECT_NE(folder_.get(file).find("wordWrapLength = 61"), std::string::npos);
  }
  const std::string printed = run("settings", {"--all-projects"}).out;
  EXPECT_EQ(printed.find("Project: Shop\naddSee"), 0U);
  EXPECT_NE(printed.find("\nProject: Other\naddSee"), std::string::npos);
}

}  // namespace
}  // namespace tamrikon
