#include "ide/connect.h"

#include <gtest/gtest.h>

#include "compiler/store.h"
#include "host/host_ide.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::User;

class ConnectTest : public testing::Test {
 protected:
  ConnectTest() {
    folder_.put("t/own.tmkt",
                "$MEMBER-EXT$ .m\n$PROJECT-EXT$ .p\n$tamrik-exec-after$\n"
                "$end-tamrik-exec-after$\n");
    for (const char* name : {"One", "Two"}) {
      const std::string text(name);
      folder_.put("C" + text + ".cls", "Public Sub Fill()\nEnd Sub\n");
      folder_.put(text + ".vbp", "Name=\"" + text + "\"\nRelatedDoc=notes.txt\nClass=C" + text +
                                     "; C" + text + ".cls\n");
      folder_.put(text + ".tamrik", "#Tamrikon Project Settings#\noutputPath = " + folder_.path() +
                                        "/out" + text + "\ntemplateFolder = " + folder_.path() +
                                        "/t\ntemplatePath = own.tmkt\ncomModules = C" + text +
                                        "\n");
    }
    folder_.put("NoCode.vbp", "Name=\"NoCode\"\nRelatedDoc=notes.txt\n");
    session_.runsPrograms = false;
  }

  void open(const std::string& group) {
    std::string why;
    ide_ = HostIde::open(
        nativeFileSystem(), folder_.put("g.vbg", "VBGROUP 5.0\n" + group), nullptr,
        [](const std::string&) {}, why);
    ASSERT_TRUE(ide_) << why;
    session_.codePageOf = [this](const VBProject& project) -> const CodePage& {
      return ide_->codePageOf(project);
    };
    connect_.setIde(ide_.get());
  }

  CodePane& paneOf(int project) {
    return ide_->VBProjects().Item(project).VBComponents().Item(2).CodeModule()->CodePane();
  }

  test::TempFolder folder_;
  test::ScriptedToolkit toolkit_;
  Session session_{toolkit_, nativeFileSystem(), nativeProcessServices(), "/data"};
  std::unique_ptr<HostIde> ide_;
  connect connect_{session_};
};

constexpr const char* kBoth = "StartupProject=One.vbp\nProject=Two.vbp\n";

TEST_F(ConnectTest, NothingFollowsTheOptionsUnlessTheyAskForACompile) {
  open(kBoth);
  for (const bool presses : {true, false}) {
    toolkit_.onDialog("frmAddIn", [&](User& user) {
      EXPECT_TRUE(connect_.FormDisplayed);
      auto& dialog = dynamic_cast<frmAddIn&>(user.dialog());
      if (presses) return user.click(dialog.cmdOK);
      user.clickCloseBox();
    });
    connect_.Show();
    EXPECT_FALSE(connect_.FormDisplayed);
  }
}

TEST_F(ConnectTest, CompileFollowsWithTheSettingsOfTheDialog) {
  open(kBoth);
  toolkit_.onDialog("frmAddIn", [&](User& user) {
    auto& dialog = dynamic_cast<frmAddIn&>(user.dialog());
    user.check(dialog.compilePage.Check1, false);
    user.click(dialog.Command1);
  });
  toolkit_.onDialog("ProgressDlg", [&](User& user) {
    EXPECT_EQ(session_.progressDlg.Text1.text(), "Project: One\r\n");
    user.click(session_.progressDlg.OKButton);
  });
  connect_.Show();
  EXPECT_TRUE(folder_.has("outOne/One.p"));
  EXPECT_FALSE(folder_.has("outOne/COne-Fill.m")) << "members without a comment are left out";
  EXPECT_NE(folder_.get("One.tamrik").find("comNonCommented = 0"), std::string::npos);
}

TEST_F(ConnectTest, GroupCompileUsesEachProjectsSettingsAndLeavesTheWindowsAsTheyWere) {
  open(kBoth);
  CodePane& first = paneOf(1);
  ide_->setActiveCodePane(first);
  toolkit_.onDialog("frmAddIn", [&](User& user) {
    user.click(dynamic_cast<frmAddIn&>(user.dialog()).Command14);
  });
  toolkit_.onDialog("ProgressDlg", [&](User& user) {
    EXPECT_EQ(ide_->Windows().Count(), 2) << "the window of the second project is open meanwhile";
    EXPECT_EQ(session_.progressDlg.Text1.text(), "Project: One\r\nProject: Two\r\n");
    user.click(session_.progressDlg.OKButton);
  });
  connect_.Show();
  EXPECT_TRUE(folder_.has("outOne/One.p") && folder_.has("outTwo/Two.p"));
  EXPECT_EQ(ide_->Windows().Count(), 1);
  EXPECT_EQ(ide_->ActiveWindow(), &first.Window());
}

TEST_F(ConnectTest, GroupProjectWithoutCodeIsCountedAndPassedOver) {
  open("StartupProject=One.vbp\nProject=NoCode.vbp\nProject=Two.vbp\n");
  toolkit_.onDialog("frmAddIn", [&](User& user) {
    user.click(dynamic_cast<frmAddIn&>(user.dialog()).Command14);
  });
  toolkit_.onDialog("ProgressDlg", [&](User& user) {
    EXPECT_EQ(session_.progressDlg.Text1.text(), "Project: One\r\nProject: Two\r\n");
    user.click(session_.progressDlg.OKButton);
  });
  connect_.Show();
}

TEST_F(ConnectTest, WithoutAProjectOnlyHelpAndCancelWork) {
  connect_.setIde(nullptr);
  toolkit_.onDialog("frmAddIn", [&](User& user) {
    auto& dialog = dynamic_cast<frmAddIn&>(user.dialog());
    EXPECT_FALSE(user.canReach(dialog.cmdOK) || user.canReach(dialog.Command1));
    user.press(Key::escape);
  });
  connect_.Show();
}

}  // namespace
}  // namespace tamrikon
