#include <algorithm>

#include "dialogs/indent_example.h"
#include "dialogs/options_fixture.h"
#include "support/fake_module.h"

namespace tamrikon {
namespace {

using test::User;

class FrmAddInTest : public test::OptionsFixture {};

TEST_F(FrmAddInTest, WithoutAProjectOnlyHelpAndCancelWork) {
  dialog_.VBInstance = nullptr;
  toolkit_.canOpen = false;
  show("Group1", [&](User& user) {
    EXPECT_EQ(dialog_.compilePage.Label2.caption(), "No project opened !");
    for (const Control* control : dialog_.controls()) {
      const bool works = control == &dialog_.Command4 || control == &dialog_.cmdCancel;
      EXPECT_EQ(control->isEnabled(), works) << control->name();
    }
    user.click(dialog_.Command4);
    user.press(Key::escape);
  });
  EXPECT_EQ(toolkit_.opened, std::vector<std::string>{folder_ / "data/tamrikon.chm"});
  EXPECT_EQ(toolkit_.boxes.size(), 1U) << "the user hears why there is no manual";
  dialog_.VBInstance = ide_.get();
  show("Group1", [&](User& user) {
    EXPECT_TRUE(user.canReach(dialog_.compilePage.Check1));
    EXPECT_FALSE(user.canReach(dialog_.Command14)) << "a single project is no group";
    user.press(Key::escape);
  });
}

TEST_F(FrmAddInTest, EachCheckBoxStandsForItsSetting) {
  const std::string tabs[] = {
      "Check1 comNonCommented Check2 comPublic Check3 comPrivate Check4 comFriend Check5 comObject "
      "Check6 comForm Check7 comStdModule Check8 comMethod Check9 comProperty Check10 comEvent "
      "Check18 comVariable Check19 comConstant Check17 comContextID Check29 comWriteDescription",
      "Check12 addDescription Check11 addParam Check13 addReturn Check14 addRem Check15 addSee "
      "Check16 addSame Check25 addAuthor Check26 addRevision Check27 addVersion "
      "Check28 addIncludeSource Check20 addUser1 Check21 addUser2 Check22 addUser3 "
      "Check23 addUser4 Check24 addUser5"};
  show("Group1", [&](User& user) {
    user.click(dialog_.cmdApply);
    for (const std::string& tab : tabs) {
      const auto words = split(tab, ' ');
      for (std::size_t n = 0; n < words.size(); n += 2) {
        const auto control = std::find_if(dialog_.controls().begin(), dialog_.controls().end(),
                                          [&](Control* c) { return c->name() == words[n]; });
        auto& box = dynamic_cast<CheckBox&>(**control);
        std::string expected = folder_.get("Shop.tamrik");
        const std::string line = "\r\n" + std::string(words[n + 1]) + " = ";
        char& value = expected[expected.find(line) + line.size()];
        EXPECT_EQ(box.isChecked(), value == '1') << words[n];
        value = box.isChecked() ? '0' : '1';
        user.check(box, !box.isChecked());
        user.click(dialog_.cmdApply);
        EXPECT_EQ(folder_.get("Shop.tamrik"), expected) << words[n];
      }
      user.press({Key::tab, true});
    }
    user.press(Key::escape);
  });
}

TEST_F(FrmAddInTest, OkSavesEveryLineAndKeepsWhatItDoesNotShow) {
  session_.settings.addingMode = 7;
  session_.settings.autoUpdateParams = 1;
  session_.settings.wordWrapLength = -72;
  session_.settings.indentMode = 9;
  show("Group4", [&](User& user) {
    EXPECT_TRUE(dialog_.miscPage.Option1.isSelected()) << "only 1 ignores the indent";
    EXPECT_TRUE(dialog_.miscPage.Option6.isSelected());
    user.choose(dialog_.miscPage.Option7);
    user.type(dialog_.miscPage.Text7, "one\n two");
    user.click(dialog_.cmdOK);
  });
  EXPECT_EQ(saved("indentMode") + saved("insertSourceGlobal"), "02");
  EXPECT_EQ(saved("addingMode") + saved("autoUpdateParams") + saved("wordWrapLength"), "71-72");
  EXPECT_TRUE(folder_.get("Shop.tamrik")
                  .ends_with("\r\ntemplatePath = chm.tmkt\r\ncomModules = Alpha\r\n"
                             "comModules = Beta\r\ncomModules = Gamma"));
}

TEST_F(FrmAddInTest, OptionsStandForTheirModesAndChooseTheExample) {
  MiscPage& page = dialog_.miscPage;
  const auto expectExample = [&](User& user, const std::string& text) {
    toolkit_.onDialog("IndentExample", [&](User& reader) {
      EXPECT_EQ(dynamic_cast<const IndentExample&>(reader.dialog()).Label4.caption(), text);
      reader.press(Key::escape);
    });
    user.click(page.Command11);
  };
  session_.settings.insertSourceGlobal = 1;
  show("Group4", [&](User& user) {
    EXPECT_TRUE(page.Option5.isSelected());
    expectExample(user, "This is\ran example\r     of current\r'    indent mode");
    user.choose(page.Option2);
    expectExample(user, "This is\r  an example\r  of current\r      indent mode");
    user.click(dialog_.cmdOK);
  });
  EXPECT_EQ(saved("indentMode") + saved("insertSourceGlobal"), "11");
}

TEST_F(FrmAddInTest, ModulesAreSavedInTheOrderInWhichTheyWereChosen) {
  test::FakeModule foreign;  // named Module1
  session_.settings.comModules = {};
  session_.settings.comModules.add(&foreign, "Module1");
  session_.settings.comModules.add(ide_->ActiveVBProject().VBComponents().Item(1).CodeModule(),
                                   "Alpha");
  show("Group1", [&](User& user) {
    CompilePage& page = dialog_.compilePage;
    ASSERT_EQ(page.ListView1.count(), 3);
    EXPECT_TRUE(page.ListView1.isChecked(0) && !page.ListView1.isChecked(1));
    const auto apply = [&] {
      user.click(dialog_.cmdApply);
      return saved("comModules");
    };
    user.check(page.ListView1, "Gamma", true);
    EXPECT_EQ(apply(), "Module1,Alpha,Gamma");
    user.check(page.ListView1, "Alpha", false);
    user.click(page.Command2);
    EXPECT_TRUE(page.ListView1.isChecked(0));
    EXPECT_EQ(apply(), "Module1,Gamma,Alpha,Beta");
    user.click(page.Command3);
    EXPECT_FALSE(page.ListView1.isChecked(2));
    EXPECT_EQ(apply(), "Module1") << "what the list doesn't show stays";
    user.check(page.ListView1, "Beta", true);
    user.check(page.Check3, true);
    user.clickCloseBox();
  });
  EXPECT_EQ(session_.settings.comModules.size(), 1U) << "closing the window is no Apply";
  EXPECT_FALSE(session_.settings.comPrivate);
}

}  // namespace
}  // namespace tamrikon
