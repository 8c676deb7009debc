#include "compiler/progress_dlg.h"

#include <gtest/gtest.h>

#include "compiler/store.h"
#include "support/open_project.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::User;

class ProgressDlgTest : public testing::Test {
 protected:
  ProgressDlgTest() {
    folder_.put("COne.cls", "'**\n'Fills.\nPublic Sub Fill()\nEnd Sub\n");
    folder_.put("One.vbp", "Type=Exe\nName=\"One\"\nClass=COne; COne.cls\n");
    template_ = folder_.put("t.tmkt",
                            "$MEMBER-EXT$ .m\n$tamrik-help-file$\n$OUTPUT-PATH$/all.chm\n"
                            "$end-tamrik-help-file$\n");
    std::filesystem::create_directories(folder_ / "out");
    session_.runsPrograms = false;
  }

  void open() {
    ide_ = test::openProject(folder_ / "One.vbp");
    dialog_.VBInstance = ide_.get();
    session_.settingsFile.setDefaultSettings(*ide_);
    session_.settings.templatePath = template_;
    session_.settings.outputPath = folder_ / "out";
  }

  test::TempFolder folder_;
  test::ScriptedToolkit toolkit_;
  Session session_{toolkit_, nativeFileSystem(), nativeProcessServices(), "/data"};
  ProgressDlg& dialog_ = session_.progressDlg;
  std::unique_ptr<HostIde> ide_;
  std::string template_;
};

TEST_F(ProgressDlgTest, CompileStopsAtTheCheckpointBehindACancel) {
  folder_.put("COne.cls",
              "'**\n'Fills.\nPublic Sub Fill()\nEnd Sub\nPublic Sub Empty_()\nEnd Sub\n");
  folder_.put("t.tmkt",
              "$MEMBER-EXT$ .m\n$PROJECT-EXT$ .p\n$CONTENTS-EXT$ .c\n$INDEX-EXT$ .i\n$X$ x\n");
  open();
  // Events get through before each of two members, behind four steps of preparation and four pages,
  // before each of three topics and behind the external programs.
  for (const auto& [pump, files] :
       {std::pair{1, 0}, {6, 0}, {7, 1}, {11, 4}, {13, 6}, {14, 7}, {15, 7}}) {
    SCOPED_TRACE(pump);
    int count = 0;
    toolkit_.onCheckpoint = [&, last = pump] { session_.cancelRequested = ++count >= last; };
    std::filesystem::remove_all(folder_ / "out");
    std::filesystem::create_directory(folder_ / "out");
    dialog_.startCompile();
    const bool isStopped = pump < 15;
    EXPECT_EQ(dialog_.outcome(), isStopped ? CompileOutcome::aborted : CompileOutcome::finished);
    EXPECT_EQ(nativeFileSystem().list(folder_ / "out").size(), std::size_t(files));
    EXPECT_EQ(session_.currentStore->evaluateMacro("X"), isStopped ? "$X$" : "x");
  }
}

TEST_F(ProgressDlgTest, FinishedTopicsOfASingleFileAreWrittenWhateverEndsTheCompile) {
  folder_.put("CTwo.cls", "'**\n'$tamrik-loop$\nPublic Sub Spill()\nEnd Sub\n");
  folder_.put("One.vbp", "Type=Exe\nName=\"One\"\nClass=COne; COne.cls\nClass=CTwo; CTwo.cls\n");
  // What is left out counts, but takes no time.
  std::string sections = "$SPLIT$ 0\n$MEMBER-EXT$ .m\n$tamrik-loop$\n$IFNOTEMPTY$ $NO$\n" +
                         std::string(1 << 20, 'x') +
                         "$END-IFNOTEMPTY$$tamrik-loop$$tamrik-loop$\n$end-tamrik-loop$\n";
  for (const std::string name : {"project", "title", "contents"}) {
    sections += "$tamrik-" + name + "-body$\n$end-tamrik-" + name + "-body$\n";
  }
  folder_.put("t.tmkt", sections +
                            "$tamrik-object-body$\n$MEMBER-NAME$;\n$end-tamrik-object-body$\n"
                            "$tamrik-method-body$\n$MEMBER-DESCRIPTION$;\n"
                            "$end-tamrik-method-body$\n");
  open();
  toolkit_.onCheckpoint = [&] { session_.cancelRequested = dialog_.Animation1.done() == 2; };
  dialog_.startCompile();
  EXPECT_EQ(dialog_.outcome(), CompileOutcome::aborted);
  EXPECT_EQ(folder_.get("out/One.m"), "COne;Fills.\r\n;");

  toolkit_.onCheckpoint = [] {};
  dialog_.startCompile();
  EXPECT_EQ(dialog_.outcome(), CompileOutcome::failed);
  EXPECT_EQ(folder_.get("out/One.m"), "COne;Fills.\r\n;CTwo;");
  EXPECT_EQ(dialog_.Text1.text(),
            "Project: One\r\nERROR: The expansion of tamrik-method-body has no end: its bounds of "
            "calls and text are used up at $tamrik-loop$, in the topic of CTwo.Spill\r\n");
}

TEST_F(ProgressDlgTest, ShowingItCompilesAndLeavesItOpenWithItsLog) {
  open();
  std::size_t most = 0;
  toolkit_.onCheckpoint = [&] {
    EXPECT_EQ(dialog_.caption(), "Compiling, please wait...");
    User& user = toolkit_.user();
    EXPECT_TRUE(user.canReach(dialog_.CancelButton) && user.canReach(dialog_.Animation1));
    EXPECT_FALSE(user.canReach(dialog_.OKButton) || user.canReach(dialog_.Command1));
    user.clickCloseBox();
    EXPECT_TRUE(dialog_.isShown());
    most = std::max(most, dialog_.Animation1.done());
  };
  toolkit_.onDialog("ProgressDlg", [&](User& user) {
    EXPECT_EQ(dialog_.caption(), "Compilation status:");
    EXPECT_EQ(dialog_.Text1.text(), "Project: One\r\n");
    EXPECT_EQ(dialog_.StatusBar1.panel(1), "");
    EXPECT_FALSE(user.canReach(dialog_.CancelButton) || user.canReach(dialog_.Animation1));
    user.press(Key::escape);
    user.clickCloseBox();
    EXPECT_TRUE(dialog_.isShown()) << "only its own button closes it";
    user.click(dialog_.Command1);
    user.press(Key::enter);
    user.click(dialog_.OKButton);
  });
  dialog_.showModal();
  EXPECT_EQ(dialog_.outcome(), CompileOutcome::finished);
  EXPECT_EQ(toolkit_.opened.front(), folder_ / "out/all.chm");
  EXPECT_GT(most, 0U) << "topics are counted while they are written";
  EXPECT_EQ(dialog_.Animation1.done(), dialog_.Animation1.all());
}

TEST_F(ProgressDlgTest, CancelStopsTheCompileAndLeavesNothingToShow) {
  open();
  toolkit_.canOpen = false;
  toolkit_.onCheckpoint = [&] {
    if (toolkit_.user().canReach(dialog_.CancelButton)) toolkit_.user().press(Key::escape);
  };
  toolkit_.onDialog("ProgressDlg", [&](User& user) {
    EXPECT_EQ(dialog_.caption(), "Compilation aborted by user");
    user.click(dialog_.Command1);
    user.click(dialog_.OKButton);
  });
  dialog_.showModal();
  EXPECT_EQ(dialog_.outcome(), CompileOutcome::aborted);
  ASSERT_EQ(toolkit_.boxes.size(), 1U);
  EXPECT_EQ(toolkit_.boxes[0].text, "Cannot show the \"$tamrik-help-file$\" file");
}

TEST_F(ProgressDlgTest, FailureThatNothingCatchesBeepsAndClosesIt) {
  open();
  toolkit_.onCheckpoint = [] { throw IdeError("the IDE is gone"); };
  dialog_.showModal();
  EXPECT_EQ(dialog_.outcome(), CompileOutcome::failed);
  EXPECT_EQ(toolkit_.beeps, 1);
  EXPECT_TRUE(toolkit_.boxes.empty());
}

TEST_F(ProgressDlgTest, InputOutOfProportionLeavesItOpenWithTheLog) {
  open();
  toolkit_.onCheckpoint = [] { throw std::length_error("too much"); };
  toolkit_.onDialog("ProgressDlg", [&](User& user) {
    EXPECT_TRUE(dialog_.Text1.text().ends_with("ERROR: too much\r\n"));
    user.click(dialog_.OKButton);
  });
  dialog_.showModal();
  EXPECT_EQ(dialog_.outcome(), CompileOutcome::failed);
}

}  // namespace
}  // namespace tamrikon
