#include <QDockWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "base/text.h"
#include "workbench_fixture.h"

namespace tamrikon::test {
namespace {

class FilesTest : public WorkbenchTest {
 protected:
  /// Types a comment line at the start of a module.
  void edit(const std::string& name) { QTest::keyClicks(&show(name), "' "); }
  bool isEdited(const std::string& name) const {
    return module(name).Lines(1, 1).starts_with("' ");
  }

  /// Waits until all that happened on disk has been noticed, and asked.
  void look() {
    window_->diskChanges().check();
    QTest::qWait(400);
  }
};

TEST_F(FilesTest, OpensByMenuDropAndRecentList) {
  put("Desk.vbp", replaceAll(bytes("Desk.vbp"), "Desk\\frmItem.frm", "Desk\\frmGone.frm"));
  prompts_.project = path("Inventory.vbg");
  trigger("open");
  ASSERT_NE(window_->ide(), nullptr);
  const auto& tree = *window_->findChild<ProjectExplorer*>();
  EXPECT_EQ(tree.topLevelItem(0)->text(0), "Stock (Stock.vbp)");
  EXPECT_TRUE(tree.topLevelItem(1)->font(0).bold());  // the start-up project
  QStringList folders;
  for (int i = 0; i < tree.topLevelItem(1)->childCount(); ++i) {
    folders += tree.topLevelItem(1)->child(i)->text(0);
  }
  EXPECT_EQ(folders, (QStringList{"Forms", "Modules", "User Controls"}));
  const QTreeWidgetItem* missing = tree.topLevelItem(1)->child(0)->child(1);
  EXPECT_EQ(missing->text(0), "frmGone (frmGone.frm)");
  EXPECT_TRUE(missing->toolTip(0).contains(path("Desk/frmGone.frm")));
  const auto& messages = *window_->findChild<MessageList*>();
  ASSERT_EQ(messages.count(), 1);
  EXPECT_TRUE(messages.item(0)->text().endsWith("Desk/frmGone.frm"));
  EXPECT_TRUE(messages.isVisible());

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
  EXPECT_EQ(messages.count(), 0);

  const auto recent = [&] { return window_->findChild<QMenu*>("recentMenu"); };
  const auto paths = [&] {
    emit recent()->aboutToShow();
    QStringList texts;
    for (const QAction* action : recent()->actions()) texts += action->text().mid(3);
    return texts;
  };
  EXPECT_EQ(paths(), (QStringList{path("Stock.vbp"), path("Inventory.vbg")}));
  for (int i = 0; i < 12; ++i) {
    const std::string name = "P" + std::to_string(i) + ".vbp";
    put(name, bytes("Stock.vbp"));
    open(name);
  }
  start();
  EXPECT_EQ(paths().size(), 10);
  std::filesystem::remove(folder_ / "Inventory/P11.vbp");
  prompts_.answers = {"OK"};
  recent()->actions()[0]->trigger();
  EXPECT_TRUE(prompts_.asked.last().contains("P11.vbp"));
  EXPECT_EQ(paths().first(), path("P10.vbp"));
  recent()->actions()[0]->trigger();
  EXPECT_EQ(window_->ide()->ActiveVBProject().FileName(), fromQt(path("P10.vbp")));
}

TEST_F(FilesTest, KeepsTheOldProjectIfTheNewOneCannotBeOpened) {
  open();
  edit("Warehouse");
  prompts_.answers = {"Don't Save", "OK"};
  EXPECT_FALSE(window_->openProject(path("Nowhere.vbp")));
  EXPECT_TRUE(prompts_.asked.last().contains("Nowhere.vbp: there is no such file"));
  prompts_.answers = {"OK"};
  EXPECT_FALSE(window_->openProject(path("Desk/DeskMain.bas")));
  EXPECT_TRUE(isEdited("Warehouse"));
  EXPECT_EQ(tabs().count(), 1);
  prompts_.answers = {"Don't Save"};
  EXPECT_TRUE(window_->close());
}

TEST_F(FilesTest, ClosingAsksAboutChanges) {
  open();
  edit("Warehouse");
  edit("DeskMain");
  module("StockText").Parent().setHelpContextID(7);
  prompts_.answers = {"Cancel"};
  EXPECT_FALSE(window_->close());
  EXPECT_EQ(fromQt(prompts_.asked.last()),
            "Save the changes to these 3 files?\nNothing but help context IDs has changed in 1 of "
            "them.\n" +
                fromQt(path("Stock/Warehouse.cls") + '\n' + path("Desk/DeskMain.bas") + '\n' +
                       path("Stock/StockText.bas")));
  prompts_.answers = {"Cancel", "Don't Save"};
  trigger("closeWindow");
  EXPECT_EQ(tabs().count(), 2);
  trigger("closeWindow");
  EXPECT_EQ(tabs().count(), 1);
  EXPECT_TRUE(isEdited("DeskMain"));  // it stays with the project
  prompts_.answers = {"Save"};
  trigger("closeWindow");
  EXPECT_TRUE(bytes("Stock/Warehouse.cls").find("\r\n' '**\r\n") != std::string::npos);
  const std::string before = bytes("Desk/DeskMain.bas");
  prompts_.answers = {"Don't Save"};
  trigger("closeProject");
  EXPECT_EQ(window_->ide(), nullptr);
  EXPECT_EQ(bytes("Desk/DeskMain.bas"), before);
  EXPECT_TRUE(window_->close());
}

TEST_F(FilesTest, ACharacterThatTheFileCannotHoldStopsItsSaveAlone) {
  open();
  edit("StockText");
  QTest::keyClicks(&show("Warehouse"), "' ");
  show("Warehouse").insertSource(QString::fromUtf8("\u4E2D"));
  prompts_.answers = {"OK"};
  trigger("saveAll");
  EXPECT_TRUE(prompts_.asked.last().contains(
      "Warehouse.cls, line 1, column 3: code page 1252 lacks '中' (U+4E2D)"));
  EXPECT_EQ(show("Warehouse").textCursor().selectedText(), QString::fromUtf8("\u4E2D"));
  EXPECT_TRUE(module("Warehouse").isChanged());
  EXPECT_FALSE(module("StockText").isChanged());
  prompts_.answers = {"Save", "OK"};
  EXPECT_FALSE(window_->close()) << "the text is nowhere else";
  EXPECT_EQ(tabs().tabText(1), "Warehouse*");
  trigger("undo");
  trigger("undo");
  EXPECT_TRUE(window_->close());
}

TEST_F(FilesTest, SaveAllGoesOnPastAFileThatIsLeftAlone) {
  open();
  edit("StockText");
  edit("Warehouse");
  window_->ide()->VBProjects().Item(1).setHelpFile("help.chm");
  const std::string theirs = bytes("Stock/Warehouse.cls") + "' theirs\r\n";
  put("Stock/Warehouse.cls", theirs);
  prompts_.answers = {"Cancel"};
  trigger("saveAll");
  EXPECT_EQ(bytes("Stock/Warehouse.cls"), theirs);
  EXPECT_FALSE(module("StockText").isChanged());
  EXPECT_NE(bytes("Stock.vbp").find("HelpFile=\"help.chm\""), std::string::npos);
  prompts_.answers = {"Save", "Overwrite"};
  EXPECT_TRUE(window_->close());
  EXPECT_EQ(bytes("Stock/Warehouse.cls").find("theirs"), std::string::npos);
}

TEST_F(FilesTest, NothingIsAskedAboveAnotherDialog) {
  open();
  put("Stock/StockText.bas", "' theirs\r\n");
  QMessageBox dialog(window_.get());
  dialog.open();
  ASSERT_EQ(QApplication::activeModalWidget(), &dialog);
  look();
  EXPECT_TRUE(prompts_.asked.isEmpty());
  prompts_.answers = {"Reload"};
  dialog.close();
  look();
  EXPECT_EQ(module("StockText").CountOfLines(), 1);
}

TEST_F(FilesTest, FilesChangedOnDiskAreReadAgainOrKept) {
  open();
  CodeEditor& editor = show("StockText");
  put("Stock/StockText.bas", bytes("Stock/StockText.bas") + "' theirs\r\n");
  put("Stock/StockErrors.bas", bytes("Stock/StockErrors.bas") + "' theirs\r\n");
  prompts_.answers = {"Reload"};
  EXPECT_TRUE(QTest::qWaitFor([&] { return prompts_.answers.empty(); }));  // noticed by itself
  EXPECT_TRUE(prompts_.asked.last().contains(path("Stock/StockErrors.bas")));
  EXPECT_TRUE(editor.toPlainText().endsWith("\n' theirs"));
  expectSame(editor, module("StockText"));
  EXPECT_FALSE(module("StockText").isChanged());

  // Most programs put a new file in place of the old one. That one is watched too.
  const auto noticesReload = [&] {
    prompts_.answers = {"Reload"};
    EXPECT_TRUE(QTest::qWaitFor([&] { return prompts_.answers.empty(); }));
  };
  put("new", bytes("Stock/StockText.bas") + "' replaced\r\n");
  std::filesystem::rename(folder_ / "Inventory/new", folder_ / "Inventory/Stock/StockText.bas");
  noticesReload();
  put("Stock/StockText.bas", bytes("Stock/StockText.bas") + "' again\r\n");
  noticesReload();
  EXPECT_TRUE(editor.toPlainText().endsWith("\n' theirs\n' replaced\n' again"));

  const qsizetype asked = prompts_.asked.size();
  prompts_.answers = {"Keep"};
  put("Stock/StockText.bas", bytes("Stock/StockText.bas") + "' more\r\n");
  look();
  put("Stock/StockText.bas", bytes("Stock/StockText.bas"));  // touched, and the same still
  look();
  EXPECT_EQ(prompts_.asked.size(), asked + 1);
  EXPECT_FALSE(editor.toPlainText().endsWith("\n' more"));
}

TEST_F(FilesTest, OwnChangesWinUnlessTheUserSaysOtherwise) {
  open();
  edit("StockText");
  const std::string before = bytes("Stock/StockText.bas");
  put("Stock/StockText.bas", before + "' theirs\r\n");
  prompts_.answers = {"Keep My Changes"};
  look();
  prompts_.answers = {"Cancel"};
  trigger("save");
  EXPECT_EQ(bytes("Stock/StockText.bas"), before + "' theirs\r\n");
  prompts_.answers = {"Overwrite"};
  trigger("save");
  EXPECT_EQ(bytes("Stock/StockText.bas").size(), before.size() + 2);

  edit("StockText");
  put("Stock/StockText.bas", before);
  prompts_.answers = {"Discard Them and Reload"};
  look();
  EXPECT_FALSE(isEdited("StockText"));
}

TEST_F(FilesTest, FilesThatAreGoneCanBeWrittenAnew) {
  open();
  show("StockText");
  const std::string before = bytes("Stock/StockText.bas");
  std::filesystem::remove(folder_ / "Inventory/Stock/StockText.bas");
  prompts_.answers = {"OK"};
  look();
  EXPECT_TRUE(prompts_.asked.last().contains("StockText.bas"));
  prompts_.answers = {"Save", "Cancel"};  // its text is nowhere else
  EXPECT_FALSE(window_->close());
  prompts_.answers = {"Write Anew"};
  trigger("save");
  EXPECT_EQ(bytes("Stock/StockText.bas"), before);
  look();
  EXPECT_TRUE(window_->close());
}

TEST_F(FilesTest, ChangedProjectIsOpenedAgain) {
  open();
  show("frmDesk");
  edit("Warehouse");
  show("Warehouse").setSelection({40, 2, 40, 4});
  put("Stock.vbp",
      replaceAll(bytes("Stock.vbp"), "Module=StockErrors; Stock\\StockErrors.bas\r\n", ""));
  prompts_.answers = {"Keep"};
  look();
  put("Inventory.vbg", bytes("Inventory.vbg") + "\r\n");
  prompts_.answers = {"Open Again", "Save"};
  look();
  EXPECT_THROW(module("StockErrors"), IdeError);
  EXPECT_EQ(tabs().count(), 2);
  EXPECT_EQ(tabs().current()->module().Name(), "Warehouse");
  EXPECT_TRUE(isEdited("Warehouse"));
  EXPECT_EQ(tabs().current()->editor().selection().startLine, 40);
}

TEST_F(FilesTest, ExplorerWorksWithKeysAlone) {
  open();
  auto& tree = *window_->findChild<ProjectExplorer*>();
  const auto select = [&](const QString& caption) {
    tree.setCurrentItem(tree.findItems(caption, Qt::MatchExactly | Qt::MatchRecursive).value(0));
  };
  const auto press = [](QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&widget, key, modifiers);
  };
  EXPECT_TRUE(tree.hasFocus());
  select("frmDesk (frmDesk.frm)");
  press(tree, Qt::Key_Return);
  EXPECT_EQ(tabs().current()->module().Name(), "frmDesk");
  EXPECT_TRUE(tabs().current()->editor().hasFocus());
  EXPECT_EQ(window_->windowTitle(), "Desk - frmDesk (Code) - Tamrikon Workbench");
  press(tabs().current()->editor(), Qt::Key_R, Qt::ControlModifier);
  EXPECT_TRUE(tree.hasFocus());
  select("Movement (Movement.cls)");
  press(tree, Qt::Key_F7);
  press(tabs().current()->editor(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(tabs().current()->module().Name(), "frmDesk");
  EXPECT_TRUE(tabs().current()->editor().hasFocus());
  EXPECT_EQ(tree.currentItem()->text(0), "frmDesk (frmDesk.frm)");

  select("Stock (Stock.vbp)");
  press(tree, Qt::Key_Return);
  EXPECT_FALSE(tree.currentItem()->isExpanded());
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

TEST_F(FilesTest, CloseAllStopsWhenTheUserCancels) {
  open();
  edit("Warehouse");
  edit("StockText");
  show("StockErrors");
  prompts_.answers = {"Don't Save", "Cancel"};
  trigger("closeAllWindows");
  EXPECT_EQ(tabs().count(), 2);
  auto* windows = window_->findChild<QMenu*>("windowMenu");
  emit windows->aboutToShow();
  QStringList listed;
  for (const QAction* action : windows->actions()) {
    if (action->isCheckable()) listed += action->text() + (action->isChecked() ? " *" : "");
  }
  EXPECT_EQ(listed,
            (QStringList{"&1 Stock - StockText (Code) *", "&2 Stock - StockErrors (Code)"}));
  prompts_.answers = {"Don't Save"};
  trigger("closeProject");
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

TEST_F(FilesTest, EditsThatWereNotSavedAreOfferedAgain) {
  const auto startAnd = [this](std::deque<QString> answers) {
    start();
    prompts_.answers = std::move(answers);
    open();
  };
  const auto editAndWait = [this] {
    edit("StockText");
    QTest::qWait(1300);
  };
  open();
  editAndWait();
  WorkbenchOptions options;
  options.settingsFile = toQt(folder_ / "settings.ini");
  options.prompts = &prompts_;
  EXPECT_TRUE(WorkbenchWindow(options).openProject(path("Inventory.vbg")));
  EXPECT_TRUE(prompts_.asked.isEmpty()) << "the edits of a program that runs are its own";
  startAnd({"Restore"});
  EXPECT_TRUE(isEdited("StockText"));
  EXPECT_TRUE(prompts_.asked.last().contains("Line 1 changes:\n- "))
      << fromQt(prompts_.asked.last());
  startAnd({"Restore"});
  trigger("saveAll");
  startAnd({});
  editAndWait();
  put("Stock/StockText.bas", bytes("Stock/StockText.bas") + "' by others\r\n");
  startAnd({"Ask Later"});
  EXPECT_TRUE(prompts_.asked.last().contains("changed since"));
  EXPECT_TRUE(module("StockText").Lines(module("StockText").CountOfLines(), 1) == "' by others");
  startAnd({"Discard"});
  startAnd({});
  editAndWait();
  prompts_.answers = {"Don't Save"};
  EXPECT_TRUE(window_->close());
  startAnd({});
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
