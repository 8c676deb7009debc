#include "toolkit/frm_browse_dlg.h"

#include <gtest/gtest.h>

#include "support/scripted_toolkit.h"

namespace tamrikon {
namespace {

std::vector<std::string> subfolders(const std::string& folder) {
  if (folder == "/") return {"docs", "home"};
  if (folder == "/docs") return {"api"};
  return {};
}

struct BrowseTest : testing::Test {
  std::string browse(const std::string& start, const test::ScriptedToolkit::Script& script) {
    toolkit.onDialog("frmBrowseDlg", script);
    return browseForFolder(toolkit, subfolders, "Specify the output folder", start);
  }
  test::ScriptedToolkit toolkit;
};

TEST_F(BrowseTest, SecondPromptFollowsTheSelectionAndOkGivesIt) {
  const std::string folder = browse("/docs", [](test::User& user) {
    auto& dialog = dynamic_cast<frmBrowseDlg&>(user.dialog());
    EXPECT_EQ(dialog.lblPrompt1.caption(), "Specify the output folder");
    EXPECT_EQ(dialog.lblPrompt2.caption(), "/docs");
    user.select(dialog.FolderTreeview1, "/docs/api");
    EXPECT_EQ(dialog.lblPrompt2.caption(), "/docs/api");
    user.press(Key::enter);
    EXPECT_EQ(dialog.FolderString(), "api");
  });
  EXPECT_EQ(folder, "/docs/api");
}

TEST_F(BrowseTest, CancelGivesNoFolder) {
  EXPECT_EQ(browse("/docs", [](test::User& user) { user.press(Key::escape); }), "");
  EXPECT_EQ(browse("/docs", [](test::User& user) { user.clickCloseBox(); }), "");
}

TEST_F(BrowseTest, StartThatIsGoneSelectsTheNearestFolderAboveIt) {
  for (const auto& [start, selected] : {std::pair{"/docs/api/", "/docs/api"},
                                        {"/docs/gone/deeper", "/docs"},
                                        {"\\home", "/home"},
                                        {"relative", "/"},
                                        {"", "/"}}) {
    EXPECT_EQ(browse(start, [](test::User& user) { user.press(Key::enter); }), selected) << start;
  }
}

}  // namespace
}  // namespace tamrikon
