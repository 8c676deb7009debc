#include <QApplication>
#include <QScreen>
#include <QTabWidget>
#include <QTimer>
#include <stdexcept>

#include "toolkit_qt/sample_dialog.h"

namespace tamrikon {
namespace {

struct DialogWindowTest : test::RendererTest {
  bool isSeen(const Control& control) { return user.widget(control).isVisible(); }
  bool isEnabled(const Control& control) { return user.widget(control).isEnabled(); }
};

TEST_F(DialogWindowTest, FramesAndTabsStandForWhatTheyHold) {
  show([&] {
    dialog.Order.setEnabled(false);
    EXPECT_FALSE(isEnabled(dialog.ByName));
    EXPECT_TRUE(isEnabled(dialog.ByKind));
    dialog.Order.setVisible(false);
    EXPECT_FALSE(isSeen(dialog.ByName));
    dialog.Tabs.select("list");
    EXPECT_FALSE(isSeen(dialog.Name));
    EXPECT_TRUE(isSeen(dialog.List));
    dialog.Tabs.setEnabled(false);
    EXPECT_FALSE(isEnabled(dialog.List));
    EXPECT_EQ(user.widget<QTabWidget>(dialog.Tabs).tabText(1), "Lists && more");
  });
}

TEST_F(DialogWindowTest, CloseBoxAsksTheDialog) {
  bool isGranted = false;
  dialog.queryClose = [&] { return isGranted; };
  show([&] {
    user.window().close();
    EXPECT_TRUE(dialog.isShown());
    EXPECT_TRUE(user.window().isVisible());
    isGranted = true;
    user.window().close();
    EXPECT_FALSE(dialog.isShown());
  });
}

TEST_F(DialogWindowTest, DialogThatClosesWhenActivatedEndsAtOnce) {
  int activations = 0;
  dialog.activate = [&] {
    ++activations;
    EXPECT_TRUE(user.window().isVisible());
    dialog.close();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  };
  dialog.showModal();
  EXPECT_EQ(activations, 1);
}

TEST_F(DialogWindowTest, CheckpointLetsAClickThroughWhileTheDialogWorks) {
  bool isCancelled = false;
  dialog.Cancel.onClick = [&] { isCancelled = true; };
  dialog.activate = [&] {
    QTimer::singleShot(0, qApp, [&] { user.click(dialog.Cancel); });
    QElapsedTimer time;
    time.start();
    while (!isCancelled && time.elapsed() < 5000) toolkit.checkpoint();
    dialog.close();
  };
  dialog.showModal();
  EXPECT_TRUE(isCancelled);
}

TEST_F(DialogWindowTest, QuittingWhileTheDialogWorksClosesIt) {
  dialog.activate = [&] {
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    for (int i = 0; i < 10; ++i) {
      QTest::qSleep(5);
      toolkit.checkpoint();
    }
    EXPECT_EQ(toolkit.messageBox({"Title", "Nobody answers", MessageButtons::yesNo}),
              MessageAnswer::no);
  };
  QTimer::singleShot(0, qApp, [&] { dialog.showModal(); });
  QCoreApplication::exec();
  EXPECT_FALSE(dialog.isShown());
}

TEST_F(DialogWindowTest, WhatAHandlerThrowsComesOutWhenTheDialogHasGone) {
  dialog.Nothing.onClick = [] { throw std::runtime_error("thrown"); };
  try {
    show([&] {
      user.click(dialog.Nothing);
      EXPECT_FALSE(dialog.isShown());
    });
    FAIL();
  } catch (const std::runtime_error& failure) {
    EXPECT_STREQ(failure.what(), "thrown");
  }
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(DialogWindowTest, OwnerMayTakeItsDialogWithIt) {
  auto* owner = new QWidget;
  toolkit.setOwner(owner);
  show([&] {
    delete owner;
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  });
  EXPECT_FALSE(dialog.isShown());
}

/// Wants more room than any screen has.
struct HugeDialog final : Dialog {
  explicit HugeDialog(Toolkit& toolkit) : Dialog(toolkit, "Huge", "Huge") {}
  TabStrip Tabs{*this, "Tabs", {{"one", "One", ""}}};
  TextBox Text{*this, "Text"};
  ListBox List{*this, "List"};
  CommandButton Ok{*this, "Ok", "OK"};
  Layout layout() override {
    return column({tabbed(Tabs, {column({item(Text).sized(400), item(List).sized(40, 200)})}),
                   row({space(), item(Ok)})});
  }
  void onActivate() override {
    const QWidget& window = test::WindowUser::window();
    EXPECT_TRUE(window.screen()->availableGeometry().contains(window.frameGeometry()));
    EXPECT_TRUE(window.rect().contains(test::WindowUser::widget(Ok).geometry()));
    close();
  }
};

TEST_F(DialogWindowTest, StaysOnTheScreenWithItsButtons) {
  HugeDialog(toolkit).showModal();
}

TEST_F(DialogWindowTest, GetsTheFocusBackFromAMessage) {
  show([&] {
    test::whenShown([](QWidget& box) { box.close(); });
    toolkit.messageBox({"Title", "Text"});
    EXPECT_TRUE(QTest::qWaitForWindowActive(&user.window()));
  });
}

}  // namespace
}  // namespace tamrikon
