#include "editor/edit_comment.h"

#include "editor/demo_project.h"
#include "editor/lines.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::User;
using Items = std::vector<std::string>;

class EditCommentTest : public test::DemoProject {};

TEST_F(EditCommentTest, OpensOnWhatTheCaretIsIn) {
  struct Case {
    const char *at, *name, *description;
    bool hasParameters;
    int parameters;
  };
  session_.settings.userName[4] = "todo";
  for (const Case& c : {
           Case{"Static a", "Add", "Adds an item.", true, 2},
           Case{"Implements", "Store", "The store.", false, 0},
           Case{"Filled", "Filled", "", true, 1},
           Case{"Property Get", "Count", "", true, 0},
           Case{"Property Let", "Count", "", true, 1},
       }) {
    SCOPED_TRACE(c.at);
    edit(c.at, [&](User& user, EditComment& editor) {
      EXPECT_EQ(editor.caption(), std::string(c.name) + " - Tamrikon Comment Editor");
      EXPECT_EQ(editor.basicPage.DescriptionText.text(), c.description);
      EXPECT_EQ(editor.userPage.users[4].label.caption(), "todo");
      user.selectTab(editor.tbsOptions, "Group2");
      ParametersPage& page = editor.parametersPage;
      EXPECT_EQ(page.ParamList.count(), c.parameters);
      EXPECT_EQ(user.canReach(page.ReturnsText), c.hasParameters);
      EXPECT_EQ(user.canReach(page.ParamUpdateBtn), c.hasParameters);
      EXPECT_EQ(user.canReach(page.ParamText), c.parameters > 0);
      user.clickCloseBox();
    });
  }
}

TEST_F(EditCommentTest, WritesTheFieldsBack) {
  const std::string before = source();
  session_.settings.comContextID = true;
  int groups = 0;
  const EditGrouping group = [&](CodeModule& cmo, const std::function<void()>& change) {
    EXPECT_EQ(&cmo, &module("Store"));
    ++groups;
    change();
  };
  const auto change = [](User& user, EditComment& editor) {
    user.type(editor.basicPage.RemarksText, "One\nTwo");
    user.selectTab(editor.tbsOptions, "Group2");
    user.select(editor.parametersPage.ParamList, "item");
    user.type(editor.parametersPage.ParamText, "What to add.");
    user.type(editor.parametersPage.ReturnsText, "True.");
    user.selectTab(editor.tbsOptions, "Group6");
    user.check(editor.miscPage.IncludeSourceCode, true);
    user.selectTab(editor.tbsOptions, "Group5");
    user.type(editor.userPage.users[1].text, "x");
    user.press(KeyEvent{Key::tab, true});  // the box still has the focus
  };
  toolkit_.answers = {MessageAnswer::cancel, MessageAnswer::no};
  edit("Static a", [&](User& user, EditComment& editor) {
    change(user, editor);
    user.press(Key::escape);
    EXPECT_TRUE(editor.isShown());
    user.clickCloseBox();
  });
  EXPECT_EQ(source(), before);
  EXPECT_FALSE(folder_.has("Demo.tamrik"));

  const std::string written =
      "  '**\n  'Adds an item.\n  '@rem          One\n  'Two\n"
      "  '@param key  Required. Integer. The key.\n  '@param        item What to add.\n"
      "  '@set key A 1 first\n  '@return       True.\n"
      "  '@includesource yes\n  '@user2        x\n  '@see Shelf the place\n"
      "  Public Function Add(";
  std::string after;
  const auto applyAgain = [&](User& user, EditComment& editor) {
    change(user, editor);
    user.click(editor.cmdApply);
    after = source();
    user.click(editor.cmdApply);
    EXPECT_EQ(source(), after);
    user.click(editor.cmdOK);
  };
  edit("Static a", applyAgain, group);
  EXPECT_EQ(source(), after);
  EXPECT_EQ(after.find(written), before.find("  '**"));
  EXPECT_EQ(after.substr(after.find("Public Function")),
            before.substr(before.find("Public Function")));
  EXPECT_EQ(groups, 1);
  EXPECT_TRUE(folder_.has("Demo.tamrik"));
}

TEST_F(EditCommentTest, WritesOneCommentWhereThereWasNone) {
  for (const auto& [at, text, above] :
       {std::tuple("Sub Clear", "Empties it.", "End Property\n'**\n'Empties it.\nPublic Sub"),
        {"mShelf", "x", "IKeep\n'**\n'x\nPrivate m"},
        {"Filled", "y", "'one\n'**\n'y\n'@param"},
        {"Property Let", "z", "End Property\n'**\n'z\n'@param"},
        {"Property Set", "s", "End Property\n'**\n's\n'@param"},
        {"Implements", "", "'**\nImplements"}}) {
    edit(at, [text = text](User& user, EditComment& editor) {
      user.type(editor.basicPage.DescriptionText, text);
      user.click(editor.cmdApply);
      user.click(editor.cmdOK);
    });
    EXPECT_NE(("\n" + source()).find(std::string(above)), std::string::npos) << at;
  }
  EXPECT_TRUE(source().starts_with("'**\nImplements"));
}

TEST_F(EditCommentTest, AFailureLeavesSourceAndSettingsFile) {
  const std::string before = source();
  const auto change = [](User& user, EditComment& editor) {
    user.type(editor.basicPage.DescriptionText, "x");
    user.click(editor.cmdOK);
  };
  edit("Static a", change, [](CodeModule&, const auto&) { throw IdeError("no"); });
  EXPECT_EQ(source(), before);
  EXPECT_FALSE(folder_.has("Demo.tamrik"));
}

TEST_F(EditCommentTest, UpdatesParametersAtAClickOrWhenItOpens) {
  const auto check = [](EditComment& editor) {
    ParametersPage& page = editor.parametersPage;
    EXPECT_EQ(page.ParamList.items(), (Items{"key", "item", "n", "s"}));
    EXPECT_EQ(page.ParamText.text(), "Required. Long. The key.");
    EXPECT_EQ(page.ReturnsText.text(), "Boolean.");
    EXPECT_EQ(page.settingsGrid.SetGrid.rowCount(), 1);
  };
  edit("Static a", [&](User& user, EditComment& editor) {
    user.selectTab(editor.tbsOptions, "Group2");
    user.click(editor.parametersPage.ParamUpdateBtn);
    check(editor);
    user.check(editor.parametersPage.updateOnStartCheck, true);
    user.click(editor.cmdCancel);
  });
  EXPECT_EQ(session_.settings.autoUpdateParams, 1);
  edit("Static a", [&](User& user, EditComment& editor) {
    check(editor);
    user.click(editor.cmdCancel);
  });
}

TEST_F(EditCommentTest, EditsSettingsInTheGrid) {
  edit("Static a", [](User& user, EditComment& editor) {
    user.selectTab(editor.tbsOptions, "Group2");
    user.click(editor.parametersPage.ParamUpdateBtn);
    ParametersPage& page = editor.parametersPage;
    SettingsGrid& settings = page.settingsGrid;
    Grid& grid = settings.SetGrid;
    const auto type = [&](int row, int column, const char* text, Key key) {
      user.clickCell(grid, row, column);
      user.type(*grid.openedBox(), text);
      user.press(key);
    };
    type(0, 0, "lost", Key::escape);
    EXPECT_EQ(user.focused(), &grid);
    type(0, 0, "B", Key::enter);
    EXPECT_EQ(grid.openedBox(), nullptr);
    user.click(settings.AddSetBtn);
    type(1, 1, "2", Key::up);
    type(0, 2, "one\ntwo", Key::down);  // a key of that box's own
    EXPECT_EQ(grid.openedBox(), &settings.Text2);
    type(1, 0, "C", Key::other);
    user.select(page.ParamList, "item");  // from within the box
    EXPECT_TRUE(grid.rowCount() == 0 && !user.canReach(settings.RemoveSetBtn));
    for (const char* name : {"item", "n"}) {
      user.select(page.ParamList, name);
      user.click(settings.AddSetBtn);
    }
    user.select(page.ParamList, "s");  // three others have settings
    EXPECT_FALSE(user.canReach(grid) || user.canReach(settings.AddSetBtn));
    for (const char* name : {"item", "n"}) {
      user.select(page.ParamList, name);
      type(0, 0, "D", Key::down);  // the last row stays the current one
      user.press(Key::del);
      EXPECT_EQ(grid.cell(0, 0), "");
      user.click(settings.RemoveSetBtn);
    }
    user.select(page.ParamList, "key");
    user.click(settings.AddSetBtn);
    user.clickCell(grid, 1, 0);
    user.click(settings.RemoveSetBtn);
    user.click(editor.cmdOK);
  });
  const char* written = "'@set          key B 1 one\n  'two\n  '@set          key   \n  '@return";
  EXPECT_NE(source().find(written), std::string::npos) << source();
}

TEST_F(EditCommentTest, NothingIsLostWithoutAWord) {
  const std::string declaration = "  Public Function Add(";
  CodeModule& store = module("Store");
  const int line = lineOf(declaration);
  const auto check = [&](const test::TextCase& c) {
    const std::string comment = "'**" + c["headline"] + "|'" + replaceAll(c["comment"], "|", "|'");
    store.InsertLines(line, replaceAll(comment, "|", "\r\n"));
    const std::string before = source();
    edit("Static a", [&](User& user, EditComment& editor) {
      if (!c["remarks"].empty()) user.type(editor.basicPage.RemarksText, c["remarks"]);
      if (!c["lost"].empty()) {
        onDialog<LostLinesDlg>([&](User& u, LostLinesDlg& warning) {
          EXPECT_EQ(warning.LinesText.text(), replaceAll(c["lost"], "|", "\r\n"));
          u.press(Key::escape);
        });
        user.click(editor.cmdOK);
        EXPECT_EQ(source(), before);
        onDialog<LostLinesDlg>([](User& u, LostLinesDlg& warning) { u.click(warning.WriteBtn); });
        user.click(editor.cmdApply);  // what it doesn't lose, it needn't show
      }
      user.click(editor.cmdOK);
    });
    const std::string written = "  '**\n  '" + replaceAll(c["written"], "|", "\n  '") + "\n";
    if (c["written"].empty()) {
      EXPECT_EQ(source(), before);
    } else {
      EXPECT_NE(source().find(written + declaration), std::string::npos) << source();
    }
    store.DeleteLines(line, lineOf(declaration) - line);
  };
  test::forEachCase("editor/lost-lines.txt", {"headline", "comment", "remarks", "lost", "written"},
                    check);
}

TEST_F(EditCommentTest, OptionsChangeWhatIsWritten) {
  struct Case {
    int stored;
    const char *shown, *typed;
    bool wraps;
    int kept;
  };
  for (const Case& c : {Case{0, "10", "72", false, -72}, Case{-72, "72", "", true, 72},
                        Case{900, "500", "5", true, 10}}) {
    session_.settings.wordWrapLength = static_cast<std::int16_t>(c.stored);
    EditCommentOptions options(toolkit_, session_.settings);
    onDialog<EditCommentOptions>([&](User& user, EditCommentOptions& dialog) {
      EXPECT_EQ(user.canReach(dialog.UpDown1), c.stored >= 0);
      EXPECT_EQ(dialog.Text1.text(), c.shown);
      if (*c.typed != '\0') user.type(dialog.Text1, c.typed);
      user.check(dialog.Check1, c.wraps);
      user.check(dialog.Check2, true);
      user.press(Key::enter);
    });
    options.showModal();
    EXPECT_EQ(session_.settings.wordWrapLength, c.kept);
    EXPECT_EQ(session_.settings.autoInsertEOL, 1);
  }

  edit("Static a", [this](User& user, EditComment& editor) {
    user.type(editor.basicPage.RemarksText, "One\ntwo three");
    user.selectTab(editor.tbsOptions, "Group4");
    onDialog<EditCommentOptions>([](User& u, EditCommentOptions& dialog) {
      u.type(dialog.Text1, "wide");
      u.click(dialog.OKButton);
      EXPECT_TRUE(dialog.isShown());
      u.type(dialog.Text1, "12");
      u.click(dialog.OKButton);
    });
    user.click(editor.sourcePage.Command1);
    EXPECT_NE(editor.sourcePage.SourceView.text().find("'Adds an\r\n'item.\r\n"),
              std::string::npos);
    EXPECT_NE(editor.sourcePage.SourceView.text().find("One$EOL$\r\n'two"), std::string::npos);
    user.click(editor.cmdCancel);
  });
}

}  // namespace
}  // namespace tamrikon
