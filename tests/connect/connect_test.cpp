// What the items of the add-in do, from the Options dialog to the pages of a group.
#include "connect/connect_fixture.h"
#include "editor/edit_comment.h"

namespace tamrikon::test {
namespace {

class CommandTest : public ConnectTest {
 protected:
  CommandTest() { connectIn(ConnectMode::startup); }
};

TEST_F(CommandTest, NothingFollowsTheOptionsUnlessTheyAskForACompile) {
  openBoth();
  for (const char* bar : {"Add-Ins", "Standard"}) {
    onOptions([&](User& user, frmAddIn& dialog) {
      ide_->click("Standard", "Tamrikon");  // one is enough
      EXPECT_TRUE(addIn_->self.FormDisplayed);
      std::string(bar) == "Standard" ? user.click(dialog.cmdOK) : user.clickCloseBox();
    });
    ide_->click(bar, "Tamrikon");
    EXPECT_FALSE(addIn_->self.FormDisplayed);
  }
}

TEST_F(CommandTest, CompileFollowsWithTheSettingsOfTheDialog) {
  openBoth();
  onOptions([](User& user, frmAddIn& dialog) {
    user.check(dialog.compilePage.Check1, false);
    user.click(dialog.Command1);
  });
  toolkit_.onDialog("ProgressDlg",
                    [this](User& user) { user.click(addIn_->self.progressDlg.OKButton); });
  ide_->click("Add-Ins", "Tamrikon");
  EXPECT_TRUE(folder_.has("outOne/One.p"));
  EXPECT_FALSE(folder_.has("outOne/COne-Fill.m")) << "members without a comment are left out";
  EXPECT_NE(folder_.get("One.tamrik").find("comNonCommented = 0"), std::string::npos);
}

TEST_F(CommandTest, GroupCompileUsesEachProjectsSettingsAndLeavesTheWindowsAsTheyWere) {
  // Once it can't be known which windows were open; once, as after a connection that failed
  // half-way, no events tell of projects.
  for (const std::string trouble : {"", "no windows", "no events"}) {
    openBoth();
    CodePane& first = paneOf(1);
    ide_->setActiveCodePane(first);
    ide_->calls.failing = trouble == "no windows" ? "Windows" : "";
    if (trouble == "no events") addIn_->self.ProjectHandler.reset();
    onOptions([](User& user, frmAddIn& dialog) { user.click(dialog.Command14); });
    toolkit_.onDialog("ProgressDlg", [&](User& user) {
      EXPECT_EQ(ide_->project->Windows().Count(), 2) << "that of the second project is open";
      EXPECT_EQ(addIn_->self.progressDlg.Text1.text(), "Project: One\r\nProject: Two\r\n");
      user.click(addIn_->self.progressDlg.OKButton);
    });
    ide_->click("Add-Ins", "Tamrikon");
    EXPECT_TRUE(folder_.has("outOne/One.p") && folder_.has("outTwo/Two.p")) << trouble;
    std::filesystem::remove_all(folder_ / "outTwo");
    EXPECT_EQ(ide_->project->Windows().Count(), trouble == "no windows" ? 2 : 1);
    EXPECT_EQ(ide_->project->ActiveWindow(), &first.Window());
    EXPECT_EQ(addIn_->self.progressDlg.groupLogText, "");
  }
}

TEST_F(CommandTest, GroupCompileTellsTheHostOfPagesThatWereWrittenOver) {
  folder_.put("Two.vbp", "Type=Exe\nName=\"one\"\nClass=CTwo; CTwo.cls\n");
  std::string settings = folder_.get("One.tamrik");
  folder_.put("Two.tamrik", settings.replace(settings.find("COne"), 4, "CTwo"));
  openBoth();
  for (int run = 0; run < 2; ++run) {
    onOptions([](User& user, frmAddIn& dialog) { user.click(dialog.Command14); });
    toolkit_.onDialog("ProgressDlg",
                      [&](User& user) { user.click(addIn_->self.progressDlg.OKButton); });
    ide_->click("Add-Ins", "Tamrikon");
  }
  ASSERT_EQ(ide_->faults.size(), 2U) << "each run by itself";
  EXPECT_NE(ide_->faults[1].find("differ in case alone"), std::string::npos);
  EXPECT_NE(ide_->faults[1].find("--folders"), std::string::npos);
}

TEST_F(CommandTest, WithoutAProjectNoItemFails) {
  openBoth();
  ide_->project.reset();
  EXPECT_EQ(addIn_->session.settings.comModules.size(), 0u) << "modules that are gone";
  closeOptions();
  ide_->click("Add-Ins", "Tamrikon");
  for (const char* item : {"Add Tamrikon Comment", "Copy Selection as Code"}) {
    ide_->click("Code Window", item);
  }
  EXPECT_TRUE(toolkit_.boxes.empty());
}

TEST_F(CommandTest, ItemsOfTheCodeWindowWorkOnItsCode) {
  openBoth();
  CodePane& pane = paneOf(1);
  pane.SetSelection({1, 8, 1, 11});
  ide_->click("Code Window", "Copy Selection as Code");
  EXPECT_EQ(toolkit_.clipboard, "'$CODE$\r'Sub\r'$END-CODE$");
  ide_->click("Code Window", "Comment Editor");
  ASSERT_EQ(toolkit_.boxes.size(), 1u);
  EXPECT_TRUE(toolkit_.boxes[0].text.starts_with("Cannot run comment editor when source code"));

  pane.SetSelection({1, 8, 1, 8});
  ide_->click("Code Window", "Add Tamrikon Comment");
  auto& module = static_cast<HostModule&>(pane.CodeModule());
  const std::string skeleton = module.Lines(1, 5);
  EXPECT_EQ(module.Lines(1, 1), "'**");
  toolkit_.onDialog("EditComment", [](User& user) {
    auto& editor = dynamic_cast<EditComment&>(user.dialog());
    user.type(editor.basicPage.DescriptionText, "Fills it.");
    user.click(editor.cmdOK);
  });
  ide_->click("Code Window", "Comment Editor");
  EXPECT_EQ(module.Lines(2, 1), "'Fills it.");
  module.undo();
  EXPECT_EQ(module.Lines(1, 5), skeleton) << "writing the comment back is one step to undo";
}

}  // namespace
}  // namespace tamrikon::test
