#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

#include "compiler/store.h"
#include "host/host_ide.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

class CompileTest : public testing::Test {
 protected:
  CompileTest() {
    folder_.put("Cart.cls",
                "'**\n'Fills.\nPublic Sub Fill()\nEnd Sub\nPublic Sub Empty_()\nEnd Sub\n");
    const std::string project = folder_.put("Shop.vbp", "Name=\"Shop\"\nClass=Cart; Cart.cls\n");
    std::string why;
    ide_ = HostIde::open(
        nativeFileSystem(), project, nullptr, [](const std::string&) {}, why);
    session_.runsPrograms = false;
  }

  CompileOutcome compile(const std::string& templateText, const std::string& output) {
    session_.settingsFile.setDefaultSettings(*ide_);
    session_.settings.templatePath = folder_.put("t.tmkt", templateText);
    session_.settings.outputPath = output;
    std::filesystem::create_directories(output);
    session_.progressDlg.VBInstance = ide_.get();
    session_.progressDlg.startCompile();
    return session_.progressDlg.outcome();
  }

  test::TempFolder folder_;
  test::ScriptedToolkit toolkit_;
  Session session_{toolkit_, nativeFileSystem(), nativeProcessServices(), "/data/$home"};
  std::unique_ptr<HostIde> ide_;
};

TEST_F(CompileTest, StopsAtTheCheckpointBehindACancel) {
  // Events get through before each of two members, behind four steps of preparation and four pages,
  // and before each of three topics.
  for (const auto& [pump, files] : {std::pair{1, 0},
                                    {3, 0},
                                    {6, 0},
                                    {7, 1},
                                    {9, 3},
                                    {10, 4},
                                    {11, 4},
                                    {12, 5},
                                    {13, 6},
                                    {14, 7}}) {
    SCOPED_TRACE(pump);
    int count = 0;
    toolkit_.onCheckpoint = [&, last = pump] { session_.cancelRequested = ++count >= last; };
    const std::string output = folder_ / std::to_string(pump);
    const CompileOutcome outcome = compile(
        "$MEMBER-EXT$ .m\n$PROJECT-EXT$ .p\n$CONTENTS-EXT$ .c\n$INDEX-EXT$ .i\n$X$ x\n", output);
    const bool isStopped = pump < 14;
    EXPECT_EQ(outcome, isStopped ? CompileOutcome::aborted : CompileOutcome::finished);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(output), {}), files);
    EXPECT_EQ(session_.currentStore->evaluateMacro("X"), isStopped ? "$X$" : "x");
  }
}

TEST_F(CompileTest, PublishesPathsWithTheirDollarsAndOneSeparator) {
  const std::string plain = folder_ / "a$MEMBER-EXT$b";
  for (const std::string& output : {plain, plain + "/"}) {
    EXPECT_EQ(compile("$SPLIT$ 0\n$MEMBER-EXT$ .m\n$tamrik-project-body$\n$TAMRIK-PATH$ "
                      "$TEMPLATE-PATH$ $OUTPUT-PATH$ $CHARSET$ $TITLE-PAGE-TEXT$\n"
                      "$end-tamrik-project-body$\n$tamrik-title-body$\n$end-tamrik-title-body$",
                      output),
              CompileOutcome::finished);
    const std::string page = folder_.get("a$MEMBER-EXT$b/Shop.m");
    const std::string expected = "/data/$home /data/$home/Templates " + plain + " windows-1252 ";
    EXPECT_EQ(page.substr(0, expected.size()), expected);
    EXPECT_EQ(session_.settings.outputPath, plain + "/");
  }
}

}  // namespace
}  // namespace tamrikon
