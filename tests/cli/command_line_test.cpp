#include <gtest/gtest.h>

#include <filesystem>

#include "support/program_run.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::ProgramRun;

/// A project of one class, and a template that writes little.
class CommandLineTest : public testing::Test {
 protected:
  CommandLineTest() { std::filesystem::copy(TAMRIKON_TEST_DATA "/commands/shop", folder_.path()); }

  ProgramRun compile(const std::vector<std::string>& more, bool errIsTerminal = false) {
    std::vector<std::string> arguments = {"compile",    project_, "--output", folder_ / "deep/out",
                                          "--template", template_};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return ProgramRun(arguments, errIsTerminal);
  }

  test::TempFolder folder_;
  const std::string project_ = folder_ / "Shop.vbp";
  const std::string template_ = folder_ / "own.tmkt";
};

TEST_F(CommandLineTest, ShowsAStatusLineOnATerminalAlone) {
  const ProgramRun run = compile({}, true);
  EXPECT_NE(run.err.find("] Compiling: external programs..."), std::string::npos) << run.err;
  EXPECT_TRUE(run.err.ends_with("\r\x1b[K")) << "the line is gone at the end";
}

TEST_F(CommandLineTest, AnswersTheSameByTwoNames) {
  EXPECT_EQ(ProgramRun({"--version"}).out.rfind("tamrikon ", 0), 0U);
  EXPECT_EQ(ProgramRun({"-V"}).out, ProgramRun({"--version"}).out);
  EXPECT_EQ(ProgramRun({"help"}).out, ProgramRun({"--help"}).out);
  EXPECT_EQ(ProgramRun({"help", "compile"}).out, ProgramRun({"compile", "--help"}).out);
}

TEST_F(CommandLineTest, SavesNoLineThatTheIdeCannotRead) {
  std::string words;
  for (int n = 0; n < 300; ++n) words += "\"w\xE9\" ";  // 5 characters, written as 7
  folder_.put("Cart.cls", "Option Explicit\n\n'**\n'" + words + "\nPublic Sub Fill()\nEnd Sub\n");
  folder_.put("Shop.codepage", "1252");
  folder_.put("own.tmkt", "$tamrik-help-file$\na.chm\n  and more\n$end-tamrik-help-file$");
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

TEST_F(CommandLineTest, LivesThroughAnyTemplate) {
  std::string junk;
  for (int n = 0; n < 4096; ++n) junk += static_cast<char>((n * 7919) >> 3);
  for (const std::string& text : {std::string(), junk, std::string(2'000'000, '$'),
                                  std::string("$tamrik-index-body$\n$DOLIST$ $INDEX-LINK-LIST$")}) {
    folder_.put("own.tmkt", text);
    EXPECT_LE(compile({"--no-exec"}).status, 1);
  }
  std::filesystem::remove(template_);
  folder_.put("own.tmkt/x", "");
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
  folder_.put("own.tmkt", "$PROJECT-EXT$ .p\n$tamrik-project-body$\nx\n$end-tamrik-project-body$");
  std::filesystem::create_symlink("/dev/full", folder_ / "deep/out/Shop.p");
  const ProgramRun run = compile({});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err.find("Error saving " + folder_ / "deep/out/Shop.p" +
                         " file: Disk is full. Continue?"),
            0U);
}

}  // namespace
}  // namespace tamrikon
