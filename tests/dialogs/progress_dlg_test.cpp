#include "dialogs/progress_dlg.h"

#include <gtest/gtest.h>

#include "compiler/store.h"
#include "support/open_project.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"
#include "support/test_session.h"

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
    dialog_.run.runsPrograms = false;
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
  test::TestSession session_{toolkit_};
  ProgressDlg dialog_{toolkit_, session_};
  std::unique_ptr<HostIde> ide_;
  std::string template_;
};

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

TEST_F(ProgressDlgTest, ShowsWhichProgramRunsAndASecondCancelAsksToEndIt) {
  folder_.put("t.tmkt",
              "$PROJECT-EXT$ .p\n$tamrik-exec-after$\necho err >&2\nsleep 20\necho end\n"
              "$end-tamrik-exec-after$\n");
  open();
  dialog_.run.runsPrograms = dialog_.run.showsPrograms = true;
  std::string status;
  toolkit_.answers = {MessageAnswer::no, MessageAnswer::yes};
  toolkit_.onCheckpoint = [&] {
    if (!dialog_.StatusBar1.panel(1).ends_with(": sleep 20")) return;
    status = dialog_.StatusBar1.panel(1);
    dialog_.CancelButton.userClicked();
  };
  toolkit_.onDialog("ProgressDlg", [&](User& user) { user.click(dialog_.OKButton); });
  dialog_.showModal();
  EXPECT_EQ(dialog_.outcome(), CompileOutcome::aborted);
  EXPECT_EQ(dialog_.Text1.text(), "Project: One\r\necho err >&2\r\nerr\r\nsleep 20\r\n\r\n");
  EXPECT_EQ(toolkit_.boxes.size(), 2U) << "the first request waits, each later one asks";
  EXPECT_TRUE(status.starts_with("Waiting for the end")) << status;
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
