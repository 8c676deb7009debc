#include <QAbstractButton>

#include "toolkit_qt/sample_dialog.h"

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
