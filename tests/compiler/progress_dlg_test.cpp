#include "compiler/progress_dlg.h"

#include <gtest/gtest.h>

#include "compiler/group_compile.h"
#include "compiler/store.h"
#include "host/host_ide.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::User;

class ProgressDlgTest : public testing::Test {
 protected:
  ProgressDlgTest() {
    for (const char* name : {"One", "Two"}) {
      const std::string module = std::string("C") + name;
      folder_.put(module + ".cls", "'**\n'Fills.\nPublic Sub Fill()\nEnd Sub\n");
      folder_.put(std::string(name) + ".vbp",
                  "Name=\"" + std::string(name) + "\"\nClass=" + module + "; " + module + ".cls\n");
    }
    folder_.put("Bare.vbp", "Name=\"Bare\"\n");
    template_ = folder_.put("t.tmkt",
                            "$MEMBER-EXT$ .m\n$tamrik-help-file$\n$OUTPUT-PATH$/all.chm\n"
                            "$end-tamrik-help-file$\n");
    std::filesystem::create_directories(folder_ / "out");
    session_.runsPrograms = false;
  }

  void open(const std::string& text) {
    std::string why;
    ide_ = HostIde::open(
        nativeFileSystem(), folder_.put("p.vbg", text), nullptr, [](const std::string&) {}, why);
    ASSERT_TRUE(ide_) << why;
    dialog_.VBInstance = ide_.get();
    use(ide_->ActiveVBProject());
  }

  bool use(VBProject& project) {
    ide_->activate(project);
    session_.settingsFile.setDefaultSettings(*ide_);
    session_.settings.templatePath = template_;
    session_.settings.outputPath = folder_ / "out";
    return true;
  }

  void compileAll() {
    compileGroup(session_, *ide_,
                 {[&](VBProject& project) { return use(project); },
                  [&](VBProject& project) { compiled_ += project.Name() + " "; }});
  }

  test::TempFolder folder_;
  test::ScriptedToolkit toolkit_;
  Session session_{toolkit_, nativeFileSystem(), nativeProcessServices(), "/data"};
  ProgressDlg& dialog_ = session_.progressDlg;
  std::unique_ptr<HostIde> ide_;
  std::string template_;
  std::string compiled_;
};

constexpr const char* kOne = "VBGROUP 5.0\nStartupProject=One.vbp\n";

TEST_F(ProgressDlgTest, ShowingItCompilesAndLeavesItOpenWithItsLog) {
  open(kOne);
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
  open(kOne);
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
  EXPECT_EQ(toolkit_.boxes[0].title, "Error while showing documentation");
  EXPECT_EQ(toolkit_.boxes[0].text, "Cannot show the \"$tamrik-help-file$\" file");
  EXPECT_EQ(toolkit_.boxes[0].icon, MessageIcon::exclamation);
}

TEST_F(ProgressDlgTest, GivingUpOnTheTemplateStopsBehindTheAnalysis) {
  open(kOne);
  session_.settings.templatePath = folder_ / "gone.tmkt";
  toolkit_.onDialog("ProgressDlg", [&](User& user) {
    EXPECT_EQ(dialog_.caption(), "Compilation aborted by user");
    user.click(dialog_.OKButton);
  });
  dialog_.showModal();
  EXPECT_TRUE(std::filesystem::is_empty(folder_ / "out"));
}

TEST_F(ProgressDlgTest, FailureThatNothingCatchesBeepsAndClosesIt) {
  open(kOne);
  toolkit_.onCheckpoint = [] { throw IdeError("the IDE is gone"); };
  dialog_.showModal();
  EXPECT_EQ(dialog_.outcome(), CompileOutcome::failed);
  EXPECT_EQ(toolkit_.beeps, 1);
  EXPECT_TRUE(toolkit_.boxes.empty());
}

TEST_F(ProgressDlgTest, LogOfAGroupRunsOnAndItsLastDialogStaysOpen) {
  open("VBGROUP 5.0\nStartupProject=One.vbp\nProject=Two.vbp\n");
  int pumps = 0;
  toolkit_.onCheckpoint = [&] {
    // Cancel stops the first project alone.
    if (++pumps == 1) toolkit_.user().click(dialog_.CancelButton);
  };
  toolkit_.onDialog("ProgressDlg", [&](User& user) {
    EXPECT_EQ(dialog_.Text1.text(), "Project: One\r\nProject: Two\r\n");
    EXPECT_EQ(dialog_.outcome(), CompileOutcome::finished);
    user.click(dialog_.OKButton);
  });
  compileAll();
  EXPECT_EQ(compiled_, "One Two ");
  EXPECT_EQ(session_.groupLogText, "");
  session_.compileWholeGroup = false;
  toolkit_.onDialog("ProgressDlg", [&](User& user) {
    EXPECT_EQ(dialog_.Text1.text(), "Project: Two\r\n") << "a single compile starts with its own";
    user.click(dialog_.OKButton);
  });
  dialog_.showModal();
}

TEST_F(ProgressDlgTest, ProjectWithoutComponentsIsNeitherCompiledNorCounted) {
  open("VBGROUP 5.0\nStartupProject=One.vbp\nProject=Bare.vbp\nProject=Two.vbp\n");
  compileAll();  // no dialog stays open: none was the last of three
  EXPECT_EQ(compiled_, "One Two ");
}

}  // namespace
}  // namespace tamrikon
