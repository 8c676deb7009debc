#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <tuple>

#include "support/program_run.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::ProgramRun;

/// A project of one class, and a template that writes little.
class CommandLineTest : public testing::Test {
 protected:
  CommandLineTest() {
    folder_.put("Cart.cls",
                "Attribute VB_Name = \"Cart\"\r\n'**\r\n'Fills it.\r\nPublic Sub Fill()\r\n"
                "End Sub\r\n");
    project_ = folder_.put("Shop.vbp", "Type=Exe\r\nClass=Cart; Cart.cls\r\nName=\"Shop\"\r\n");
    template_ = folder_.put(
        "t/own.tmkt",
        "$MEMBER-EXT$ .txt\n$PROJECT-EXT$ .p\n$INDEX-EXT$ .i\n$CONTENTS-EXT$ .c\n"
        "$tamrik-project-body$\n$end-tamrik-project-body$\n$tamrik-exec-after$\necho ran\n"
        "$end-tamrik-exec-after$\n$tamrik-help-file$\nout.chm\n$end-tamrik-help-file$\n"
        "$tamrik-method-body$\n$MEMBER-DESCRIPTION$\n$end-tamrik-method-body$\n");
  }

  ProgramRun compile(const std::vector<std::string>& more, bool errIsTerminal = false) {
    std::vector<std::string> arguments = {"compile",    project_, "--output", folder_ / "deep/out",
                                          "--template", template_};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return ProgramRun(arguments, errIsTerminal);
  }

  test::TempFolder folder_;
  std::string project_;
  std::string template_;
};

TEST_F(CommandLineTest, WritesPagesIntoANewFolderAndTheLogToItsStreams) {
  const ProgramRun run = compile({"--log", folder_ / "log.txt"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  const std::string log = "Project: Shop\necho ran\nran\n\n";
  EXPECT_EQ(folder_.get("log.txt"), log);
  EXPECT_EQ(run.out.find("Project: Shop\nran\nWrote "), 0U) << "without the commands";
  EXPECT_EQ(compile({"--verbose"}).out.find(log + "Wrote "), 0U);
  EXPECT_EQ(folder_.get("deep/out/Cart-Fill.txt"), "Fills it.\r\n");
  EXPECT_FALSE(folder_.has("deep/out/execAfter.sh"));
  EXPECT_FALSE(folder_.has("Tamrik")) << "the default folder isn't made for nothing";
  EXPECT_EQ(compile({"--no-exec"}).out.find("Project: Shop\nWrote "), 0U);
  EXPECT_EQ(compile({"--quiet"}).out, "");
  EXPECT_EQ(compile({"--log", "/dev/full"}).status, 1);
}

TEST_F(CommandLineTest, ShowsAStatusLineOnATerminalAlone) {
  const ProgramRun run = compile({}, true);
  EXPECT_NE(run.err.find("] Compiling: external programs..."), std::string::npos) << run.err;
  EXPECT_TRUE(run.err.ends_with("\r\x1b[K")) << "the line is gone at the end";
}

TEST_F(CommandLineTest, TellsWrongUsageFromFailure) {
  using Case = std::tuple<std::vector<std::string>, int, std::string>;
  for (const auto& [arguments, status, names] : {
           Case{{}, 2, "COMMAND"},
           Case{{"complie"}, 2, "no command 'complie'; did you mean 'compile'?"},
           Case{{"compile", project_, "--templte=x"}, 2, "'--templte'; did you mean '--template'?"},
           Case{{"templates", "--quiet"}, 2, "there is no option '--quiet'\n"},
           Case{{"help", "everything"}, 2, "no command 'everything'\n"},
           Case{{"compile", project_, "--set", "colour=1"}, 2, "colour"},
           Case{{"compile", project_, "--set", "addSee"}, 2, "addSee"},
           Case{{"compile", project_, "--set", "indentMode=1x"}, 2, "indentMode=1x"},
           Case{{"settings", project_, "addsee=1"}, 2, "addsee"},
           Case{{"compile", folder_ / "gone.vbp"}, 1, "gone.vbp"},
           Case{{"compile", project_, "--output", project_ + "/out"}, 1, "the output folder"},
           Case{{"compile", project_, "--log", folder_ / "no/log"}, 1, "cannot write the log"},
       }) {
    const ProgramRun run(arguments);
    EXPECT_EQ(run.status, status) << names;
    EXPECT_NE(run.err.find(names), std::string::npos) << run.err;
    EXPECT_EQ(run.out, "");
  }
  EXPECT_EQ(ProgramRun({"--version"}).out.rfind("tamrikon ", 0), 0U);
  EXPECT_EQ(ProgramRun({"-V"}).out, ProgramRun({"--version"}).out);
  EXPECT_EQ(ProgramRun({"help"}).out, ProgramRun({"--help"}).out);
  EXPECT_EQ(ProgramRun({"help", "compile"}).out, ProgramRun({"compile", "--help"}).out);
}

TEST_F(CommandLineTest, CompletesWhatIsBegun) {
  using Case = std::pair<std::vector<std::string>, std::string>;
  for (const auto& [words, expected] : {
           Case{{"com"}, "compile comment"},
           Case{{"help", "te"}, "templates"},
           Case{{"--ver"}, "--version"},
           Case{{"compile", "--fail"}, "--fail-on-warnings"},
           Case{{"compile", ""}, ":files vbp|vbg"},
           Case{{"compile", project_, "--template", "ht"}, "html :files tmkt"},
           Case{{"compile", project_, "--set", "comPriv"}, "comPrivate= :nospace"},
           Case{{"compile", "--quiet", "--output", ""}, ":folders"},
           Case{{"settings", project_, "comMod"}, "comModules= :nospace"},
           Case{{"comment", project_, ""}, "Cart"},
           Case{{"example", "--codepage", "1251", project_, "C"}, "Cart: :nospace"},
           Case{{"comment", folder_ / "gone.vbp", ""}, ""},
       }) {
    std::vector<std::string> arguments = words;
    arguments.insert(arguments.begin(), "__complete");
    std::istringstream lines(ProgramRun(arguments).out);
    std::string got;
    for (std::string line; std::getline(lines, line);) {
      got += (got.empty() ? "" : " ") + line.substr(0, line.find('\t'));
    }
    EXPECT_EQ(got, expected);
  }
}

TEST_F(CommandLineTest, FailsOnWarningsIfAskedTo) {
  folder_.put("Cart.cls", "'**\n'@see Gone\nPublic Sub Fill()\nEnd Sub\n");
  folder_.put("t/own.tmkt",
              "$MEMBER-EXT$ .txt\n$tamrik-method-body$\n$DOLIST$ $SEE-LINK-LIST$\n"
              "$END-DOLIST$\n$end-tamrik-method-body$\n");
  EXPECT_EQ(compile({"--no-exec"}).status, 0);
  const ProgramRun run = compile({"--no-exec", "--quiet", "--fail-on-warnings"});
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.out,
            "Warning: The dead link 'Gone' was found in 'Fill' member of 'Cart' module.\n");

  folder_.put("Cart.cls", "");
  folder_.put("t/own.tmkt",
              "$tamrik-exec-after$\necho fine; echo ERROR: x\n$end-tamrik-exec-after$\n");
  EXPECT_EQ(compile({"--no-exec", "--fail-on-warnings"}).status, 0);
  const ProgramRun failing = compile({"--quiet", "--fail-on-warnings"});
  EXPECT_EQ(failing.status, 3) << "of a program, which goes on behind its first line";
  EXPECT_EQ(failing.out, "ERROR: x\n");

  std::filesystem::remove(folder_ / "Cart.cls");
  EXPECT_EQ(compile({"--no-exec", "--fail-on-warnings"}).status, 3) << "a file is missing";
}

TEST_F(CommandLineTest, ChangesSourcesWithSaveAlone) {
  std::vector<std::string> arguments = {"--set", "comContextID=1", "--set", "comWriteDescription=1",
                                        "--no-exec"};
  const std::string source = folder_.get("Cart.cls");
  const std::string project = folder_.get("Shop.vbp");
  EXPECT_EQ(compile(arguments).status, 0);
  EXPECT_EQ(folder_.get("Cart.cls"), source);
  EXPECT_EQ(folder_.get("Shop.vbp"), project);
  arguments.emplace_back("--save");
  EXPECT_EQ(compile(arguments).status, 0);
  // The comment stands at the top of the module as well, so that the class has it too.
  EXPECT_EQ(folder_.get("Cart.cls"),
            "Attribute VB_Name = \"Cart\"\r\nAttribute VB_HelpID = 100\r\n"
            "Attribute VB_Description = \"Fills it.\"\r\n'**\r\n'Fills it.\r\n"
            "Public Sub Fill()\r\nAttribute Fill.VB_Description = \"Fills it.\"\r\n"
            "Attribute Fill.VB_HelpID = 101\r\nEnd Sub\r\n");
  EXPECT_EQ(folder_.get("Shop.vbp"), project + "HelpFile=\"out.chm\"\r\n");
}

TEST_F(CommandLineTest, SavesNoLineThatTheIdeCannotRead) {
  std::string words;
  for (int n = 0; n < 300; ++n) words += "\"w\xE9\" ";  // 5 characters, written as 7
  folder_.put("Cart.cls", "Option Explicit\n\n'**\n'" + words + "\nPublic Sub Fill()\nEnd Sub\n");
  folder_.put("Shop.codepage", "1252");
  folder_.put("t/own.tmkt", "$tamrik-help-file$\na.chm\n  and more\n$end-tamrik-help-file$");
  for (int round = 1; round <= 2; ++round) {
    const ProgramRun run = compile({"--set", "comWriteDescription=1", "--set", "comContextID=1",
                                    "--no-exec", "--save", "--fail-on-warnings"});
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.err, "warning: " + folder_ / "Cart.cls" +
                           ", line 5: the description of Fill was cut after 704 of its 1499 "
                           "characters, as Visual Basic reads no line of more than 1023\n");
    const std::string source = folder_.get("Cart.cls");
    const std::size_t start = source.find("Attribute Fill.VB_Desc");
    EXPECT_EQ(source.find('\n', start) - start, 1020U);
    EXPECT_TRUE(folder_.get("Shop.vbp").ends_with("Name=\"Shop\"\r\nHelpFile=\"a.chm\"\r\n"));
  }
}

TEST_F(CommandLineTest, ListsTheTemplates) {
  ::setenv("TAMRIKON_HOME", folder_.path().c_str(), 1);
  folder_.put("Templates/long-enough-a-name.tmkt",
              "$tamrik-description$\nTwo\nlines in $OUTPUT-PATH$.\n$end-tamrik-description$");
  folder_.put("Templates/B.TMKT", "$tamrik-description$\nSecond.\n$end-tamrik-description$");
  folder_.put("Templates/a.tmkt", "");
  folder_.put("Templates/c.tmkt", "$A$ $A$$A$\n$REPLACE-TABLE$ a $A$\n");
  folder_.put("Templates/notes.txt", "");
  const ProgramRun run({"templates"});
  ::unsetenv("TAMRIKON_HOME");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out,
            "a               $tamrik-description$\nB               Second.\n"
            "c               The expansion of REPLACE-TABLE has no end: its bounds of calls and "
            "text are used up at $A$.\n"
            "long-enough-a-name Two lines in " +
                folder_.path() + ".\n");
}

TEST_F(CommandLineTest, GoesOnWithAGroupBehindAProjectThatWasStopped) {
  folder_.put("Shop.tamrik", "#Tamrikon Project Settings#\noutputPath = /nowhere/at/all\n");
  folder_.put("Second.vbp", "Type=Exe\nClass=Cart; Cart.cls\nName=\"Second\"\n");
  folder_.put("None.vbp", "Type=Exe\nName=\"None\"\n");
  const std::string group = folder_.put("All.vbg",
                                        "VBGROUP 5.0\nProject=Shop.vbp\nProject=None.vbp\n"
                                        "Project=Second.vbp\nProject=gone.vbp\n");
  const ProgramRun run({"compile", group, "--template", template_, "--no-exec"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out.find("Project: Shop\nProject: Second\nWrote "), 0U);
  EXPECT_NE(run.err.find("Error saving /nowhere/at/all/Group+.p file: That path doesn't exist."),
            std::string::npos);
  EXPECT_EQ(run.err.find("warning: cannot read " + folder_ / "gone.vbp\n"), 0U) << run.err;
  EXPECT_TRUE(folder_.has("Tamrik/Cart-Fill.txt"));
}

TEST_F(CommandLineTest, KeepsPagesInsideTheOutputFolder) {
  folder_.put("Cart.cls", "Attribute VB_Name = \"../../up\"\nSub A()\nEnd Sub\n");
  folder_.put("Shop.vbp", "Type=Exe\nName=\"../../../etc/x\"\nClass=a; Cart.cls\n");
  EXPECT_EQ(compile({}).status, 0);
  EXPECT_TRUE(folder_.has("deep/out/______up-A.txt"));
  for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
    EXPECT_NE(entry.path().extension(), ".p") << entry.path();
  }
}

TEST_F(CommandLineTest, LivesThroughAnyTemplate) {
  std::string junk;
  for (int n = 0; n < 4096; ++n) junk += static_cast<char>((n * 7919) >> 3);
  for (const std::string& text : {std::string(), junk, std::string(2'000'000, '$'),
                                  std::string("$tamrik-index-body$\n$DOLIST$ $INDEX-LINK-LIST$")}) {
    folder_.put("t/own.tmkt", text);
    EXPECT_LE(compile({"--no-exec"}).status, 1);
  }
  std::filesystem::remove(template_);
  folder_.put("t/own.tmkt/x", "");
  const ProgramRun run = compile({});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "tamrikon: there is no template " + template_ + "\n");
}

TEST_F(CommandLineTest, StopsWhereNamesWouldCopyALongCommentTooOften) {
  std::string source = "'**\n'" + std::string(8 << 20, 'x') + "\nPublic a";
  for (int n = 0; n < 40; ++n) source += ", a" + std::to_string(n);
  folder_.put("Cart.cls", source);
  const std::string why = "A comment that is too long stands above too many names.\n";
  EXPECT_EQ(compile({}).out, "Project: Shop\nERROR: " + why);
  EXPECT_EQ(ProgramRun({"comment", project_, "--missing"}).err, "tamrikon: " + why);
  EXPECT_EQ(folder_.get("Cart.cls"), source);
}

TEST_F(CommandLineTest, ReportsAFullDisk) {
  const ProgramRun unheard({"settings", project_},
                           [](Streams& streams) { streams.out.setstate(std::ios::badbit); });
  EXPECT_EQ(unheard.status, 1);
  EXPECT_EQ(unheard.err, "tamrikon: cannot write the output\n");
  folder_.put("deep/out/x", "");
  folder_.put("t/own.tmkt",
              "$PROJECT-EXT$ .p\n$tamrik-project-body$\nx\n$end-tamrik-project-body$");
  std::filesystem::create_symlink("/dev/full", folder_ / "deep/out/Shop.p");
  const ProgramRun run = compile({});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err.find("Error saving " + folder_ / "deep/out/Shop.p" +
                         " file: Disk is full. Continue?"),
            0U);
}

}  // namespace
}  // namespace tamrikon
