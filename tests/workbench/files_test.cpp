#include <QDockWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "workbench_fixture.h"

namespace tamrikon::test {
namespace {

using FilesTest = WorkbenchTest;

TEST_F(FilesTest, OpensByMenuAndDrop) {
  prompts_.project = path("Inventory.vbg");
  trigger("open");
  ASSERT_NE(window_->ide(), nullptr);
  QMimeData dragged;
  dragged.setUrls({QUrl::fromLocalFile(path("Stock.vbp"))});
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &dragged, Qt::LeftButton,
                        Qt::NoModifier);
  QWidget* viewport = show("Warehouse").viewport();  // also over text, which isn't dropped there
  QApplication::sendEvent(viewport, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &dragged, Qt::LeftButton,
                  Qt::ShiftModifier);
  QApplication::sendEvent(viewport, &drop);
  EXPECT_EQ(drop.dropAction(), Qt::CopyAction);  // a move would take the file away from its place
  EXPECT_TRUE(QTest::qWaitFor([&] { return window_->ide()->VBProjects().Count() == 1; }));
}

TEST_F(FilesTest, RecentProjectsAreTheTenLastOnes) {
  for (int i = 0; i < 12; ++i) {
    const std::string name = "P" + std::to_string(i) + ".vbp";
    put(name, bytes("Stock.vbp"));
    open(name);
  }
  start();
  QMenu& recent = *window_->findChild<QMenu*>("recentMenu");
  emit recent.aboutToShow();
  EXPECT_EQ(recent.actions().size(), 10);
  std::filesystem::remove(folder_ / "Projects/P11.vbp");
  prompts_.answers = {"OK"};
  recent.actions()[0]->trigger();
  EXPECT_TRUE(prompts_.asked.last().contains("P11.vbp"));
  emit recent.aboutToShow();
  recent.actions()[0]->trigger();
  EXPECT_EQ(window_->ide()->ActiveVBProject().FileName(), fromQt(path("P10.vbp")));
}

TEST_F(FilesTest, NothingIsAskedAboveAnotherDialog) {
  open();
  put("Stock/StockText.bas", "' theirs\r\n");
  QMessageBox dialog(window_.get());
  dialog.open();
  ASSERT_EQ(QApplication::activeModalWidget(), &dialog);
  const auto look = [this] {
    window_->diskChanges().check();
    QTest::qWait(400);
  };
  look();
  EXPECT_TRUE(prompts_.asked.isEmpty());
  prompts_.answers = {"Reload"};
  dialog.close();
  look();
  EXPECT_EQ(module("StockText").CountOfLines(), 1);
}

TEST_F(FilesTest, ExplorerSetsTheActiveProject) {
  open();
  auto& tree = *window_->findChild<ProjectExplorer*>();
  QTimer::singleShot(0, window_.get(), [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, Qt::Key_A);
  });
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
  QApplication::sendEvent(tree.viewport(), &event);
  EXPECT_EQ(window_->ide()->ActiveVBProject().Name(), "Stock");
  EXPECT_TRUE(tree.topLevelItem(0)->font(0).bold());
  EXPECT_FALSE(tree.topLevelItem(1)->font(0).bold());
}

TEST_F(FilesTest, BoxesAskAndChooseNothingIfCancelled) {
  BoxPrompts prompts(*window_);
  const auto answer = [&](Qt::Key key, const char* typed = "") {
    QTimer::singleShot(0, window_.get(), [key, typed] {
      QWidget* dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr);
      if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
        EXPECT_EQ(box->text() + '/' + box->informativeText(), "Sure?/<b>");
      }
      QTest::keyClicks(dialog->focusWidget(), typed);
      QTest::keyClick(dialog->focusWidget(), key);
    });
  };
  const Question question{"Sure?", "<b>", {"&Yes", "&Perhaps", "&No"}, 1, 2};
  answer(Qt::Key_Return);
  EXPECT_EQ(prompts.ask(question), 1);
  answer(Qt::Key_Escape);
  EXPECT_EQ(prompts.ask(question), 2);
  answer(Qt::Key_Escape);
  EXPECT_EQ(prompts.chooseProject(path("")), "");
  answer(Qt::Key_Escape);
  EXPECT_EQ(prompts.chooseLine(3, 9), 0);
  answer(Qt::Key_Return, "7");
  EXPECT_EQ(prompts.chooseLine(3, 9), 7);
}

TEST_F(FilesTest, LayoutIsRemembered) {
  window_->findChild<QDockWidget*>("explorerDock")->hide();
  window_->resize(900, 600);
  window_->close();
  start();
  EXPECT_EQ(window_->size(), QSize(900, 600));
  EXPECT_FALSE(window_->findChild<QDockWidget*>("explorerDock")->isVisible());
}

}  // namespace
}  // namespace tamrikon::test
