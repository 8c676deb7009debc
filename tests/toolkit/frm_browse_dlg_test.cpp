#include "toolkit/frm_browse_dlg.h"

#include <gtest/gtest.h>

#include "support/scripted_toolkit.h"

namespace tamrikon {
namespace {

TEST(FrmBrowseDlg, StartThatIsGoneSelectsTheNearestFolderAboveIt) {
  const auto subfolders = [](const std::string& folder) -> std::vector<std::string> {
    if (folder == "/") return {"docs", "home"};
    if (folder == "/docs") return {"api"};
    return {};
  };
  for (const auto& [start, selected] : {std::pair{"/docs/api/", "/docs/api"},
                                        {"/docs/gone/deeper", "/docs"},
                                        {"\\home", "/home"},
                                        {"relative", "/"},
                                        {"", "/"}}) {
    test::ScriptedToolkit toolkit;
    toolkit.onDialog("frmBrowseDlg", [](test::User& user) {
      auto& dialog = dynamic_cast<frmBrowseDlg&>(user.dialog());
      EXPECT_EQ(dialog.lblPrompt2.caption(), dialog.FolderTreeview1.selected());
      user.press(Key::enter);
    });
    EXPECT_EQ(browseForFolder(toolkit, subfolders, {}, "Where?", start), selected) << start;
  }
}

TEST(FrmBrowseDlg, MakesFoldersInTheSelectedOne) {
  std::vector<std::string> made{"docs"};
  const auto subfolders = [&](const std::string& folder) {
    return folder == "/" ? made : std::vector<std::string>();
  };
  const auto make = [&](const std::string& folder) {
    if (folder == "/full") return false;
    made.push_back(folder.substr(1));
    return true;
  };
  test::ScriptedToolkit toolkit;
  toolkit.onDialog("frmBrowseDlg", [&](test::User& user) {
    auto& dialog = dynamic_cast<frmBrowseDlg&>(user.dialog());
    for (const char* name : {"a/b", "..", "full", " site "}) {
      user.type(dialog.txtNewFolder, name);
      user.click(dialog.cmdNewFolder);
    }
    EXPECT_EQ(toolkit.boxes.size(), 3U);
    EXPECT_EQ(dialog.lblPrompt2.caption(), "/site");
    user.press(Key::enter);
  });
  EXPECT_EQ(browseForFolder(toolkit, subfolders, make, "Where?", "/"), "/site");
}

}  // namespace
}  // namespace tamrikon
