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
    EXPECT_EQ(browseForFolder(toolkit, subfolders, "Where?", start), selected) << start;
  }
}

}  // namespace
}  // namespace tamrikon
