#include <QAbstractButton>

#include "workbench/renderer/sample_dialog.h"

namespace tamrikon {
namespace {

struct FocusAndKeysTest : test::RendererTest {
  QString captionOf(const Control& control) { return user.widget<QAbstractButton>(control).text(); }
};

TEST_F(FocusAndKeysTest, FirstControlGetsTheFocusWhenTheDialogIsActive) {
  std::string atActivation;
  dialog.activate = [&] { atActivation = "told:" + dialog.told(); };
  dialog.show([&] {
    EXPECT_EQ(atActivation, "told:");
    EXPECT_EQ(dialog.told(), "+Name ");
  });
  dialog.activate = [&] { dialog.Width.setFocus(); };
  dialog.show([&] { EXPECT_EQ(dialog.told(), "+Width "); });
}

TEST_F(FocusAndKeysTest, TabFollowsTheLayout) {
  dialog.Tabs.select("list");
  show([&] {
    user.focus(dialog.List);
    dialog.told();
    std::string order;
    for (int i = 0; i < 9; ++i) {
      user.press(Qt::Key_Tab);
      const std::string told = dialog.told();
      order += told.substr(told.find('+'));
    }
    EXPECT_EQ(order, "+Checks +Folders +Combo +Typed +Cells +Nothing +Ok +Cancel +Tabs ");
    user.press(Qt::Key_Backtab);
    EXPECT_EQ(dialog.told(), "key Tabs.key -Tabs +Cancel ");
  });
}

TEST_F(FocusAndKeysTest, EnterPressesTheButtonInFocusOrTheDefaultOne) {
  dialog.Lines.setReadOnly(true);
  show([&] {
    user.focus(dialog.Lines);
    dialog.told();
    user.press(Key::enter);
    EXPECT_EQ(dialog.told(), "key Lines.key -Lines +Ok Ok=click ");
    user.click(dialog.Nothing);
    dialog.told();
    user.press(Key::enter);
    EXPECT_EQ(dialog.told(), "key Nothing.key Nothing=click ");
    dialog.Ok.setEnabled(false);
    user.focus(dialog.Name);
    dialog.told();
    user.press(Key::enter);
    EXPECT_EQ(dialog.told(), "key Name.key ");
  });
}

TEST_F(FocusAndKeysTest, ControlTabTurnsPagesRoundTheEnds) {
  show([&] {
    user.press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(dialog.told(), "key Name.key -Name +Tabs Tabs=1 ");
    user.press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(dialog.told(), "key Tabs.key Tabs=0 ");
    user.press(Qt::Key_Backtab, Qt::ControlModifier);
    EXPECT_EQ(dialog.told(), "key Tabs.key Tabs=1 ");
  });
}

TEST_F(FocusAndKeysTest, AcceleratorsAreUniqueAndTheBoxIsLeftBeforeTheyClick) {
  dialog.Nothing.setCaption("Check");
  dialog.ByName.setCaption("Check, too");
  show([&] {
    EXPECT_EQ(captionOf(dialog.Nothing), "&Check");
    EXPECT_EQ(captionOf(dialog.Check), "Now && &then");
    EXPECT_EQ(captionOf(dialog.ByName), "C&heck, too");
    EXPECT_EQ(captionOf(dialog.Ok), "OK");
    std::string told;
    user.press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] {
      told += dialog.told();
      return told == "-Name +Nothing Nothing=click ";
    })) << told;
    dialog.Nothing.setCaption("Quit");
    EXPECT_EQ(captionOf(dialog.ByName), "&Check, too");
  });
}

}  // namespace
}  // namespace tamrikon
