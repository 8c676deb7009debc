// Tamrikon in the workbench, from its menu entries to what stands in files and sources.
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabWidget>

#include "platform/data_folder.h"
#include "workbench/modal_steps.h"
#include "workbench/workbench_fixture.h"

namespace tamrikon::test {
namespace {

class AddInTest : public WorkbenchTest {
 protected:
  void SetUp() override {
    WorkbenchTest::SetUp();
    window_->connectAddIns();
  }

  /// The item of a bar; null if there is none of that caption.
  QAction* item(const char* bar, const char* caption) const {
    CommandBarControls& items = window_->screen().commandBars().Item(bar)->Controls();
    for (int number = 1; number <= items.Count(); ++number) {
      auto& item = dynamic_cast<QtControl&>(items.Item(number));
      if (item.Caption() == caption) return item.action();
    }
    return nullptr;
  }

  /// Chooses an item of a menu while `steps` are done in the dialogs that it brings up.
  void choose(const char* bar, const char* caption, ModalSteps& steps) {
    QAction* action = item(bar, caption);
    ASSERT_NE(action, nullptr) << "no item " << caption;
    steps.start();
    action->trigger();
    EXPECT_TRUE(steps.isDone()) << "a dialog didn't come up";
  }

  /// Types in place of all text of a box, as a user does.
  static void type(QWidget& dialog, const char* box, const QString& text) {
    auto* widget = dialog.findChild<QWidget*>(box);
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(widget, text);
  }

  static void pressEscape(QWidget& dialog) {
    QWidget* const focused = dialog.focusWidget();
    QTest::keyClick(focused != nullptr ? focused : &dialog, Qt::Key_Escape);
  }

  static void setChecked(QWidget& dialog, const char* name, bool checked) {
    auto* box = dialog.findChild<QCheckBox*>(name);
    if (box->isChecked() != checked) box->click();
  }

  static void showTab(QWidget& dialog, int index) {
    dialog.findChild<QTabWidget*>("tbsOptions")->setCurrentIndex(index);
  }
};

TEST_F(AddInTest, CommentIsAddedWhereTheUserRightClicks) {
  put("Stock/StockErrors.bas", "Option Explicit\r\n\r\nPublic Sub Clear(ByVal Number As Long)\r\n" +
                                   std::string("    Err.Clear\r\nEnd Sub\r\n"));
  open();
  CodeEditor& editor = show("StockErrors");
  HostModule& module = this->module("StockErrors");
  const QTextCursor clicked(editor.document()->findBlockByNumber(3));
  const QPoint place = editor.cursorRect(clicked).center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, place, editor.viewport()->mapToGlobal(place));
  QApplication::sendEvent(editor.viewport(), &event);
  auto* menu = window_->findChild<QMenu*>("codeWindowMenu");
  ASSERT_TRUE(menu->isVisible());
  QAction* add = item("Code Window", "Add Tamrikon Comment");
  QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(add).center());
  EXPECT_FALSE(menu->isVisible());
  EXPECT_EQ(module.Lines(3, 2), "'**\r\n'");
  EXPECT_EQ(module.Lines(5, 1), "'@param        Number Required. Long.");
  EXPECT_EQ(editor.caretLine(), 4);
  expectSame(editor, module);
  trigger("undo");
  EXPECT_FALSE(module.isChanged());
}

TEST_F(AddInTest, UserUnloadsItAndLoadsItAgain) {
  const auto manage = [&](bool loaded, bool onStartup) {
    ModalSteps steps;
    steps.add("AddInManager", [=](QWidget& dialog) {
      setChecked(dialog, "LoadedCheck", loaded);
      setChecked(dialog, "StartupCheck", onStartup);
      pressLater(dialog, "cmdOK");
    });
    choose("Add-Ins", "&Add-In Manager…", steps);
  };
  for (const bool isLoaded : {true, false, true}) {
    if (!isLoaded) manage(false, false);
    for (const char* bar : {"Add-Ins", "Standard"}) {
      const QAction* action = item(bar, "Tamrikon");
      ASSERT_EQ(action != nullptr, isLoaded) << bar;
      EXPECT_FALSE(isLoaded && action->icon().isNull()) << bar;
    }
    if (!isLoaded) manage(true, false);
  }
  start();
  window_->connectAddIns();
  EXPECT_EQ(item("Add-Ins", "Tamrikon"), nullptr) << "not on start-up any more";
}

TEST_F(AddInTest, GroupCompilesFromTheOptionsToTheFinishedPages) {
  open();
  std::filesystem::create_directory(folder_ / "out");
  for (const char* name : {"Stock.tamrik", "Desk.tamrik"}) {
    put(name, bytes(name) + "\r\noutputPath = " + (folder_ / "out") + "\r\ntemplateFolder = " +
                  dataFolder() + "/Templates\r\ntemplatePath = html.tmkt");
  }
  show("frmDesk");
  show("Warehouse");
  ModalSteps steps;
  steps.add("frmAddIn", [](QWidget& dialog) { pressLater(dialog, "Command14"); });
  steps.add("ProgressDlg", [](QWidget& dialog) {
    const QString log = dialog.findChild<QPlainTextEdit*>("Text1")->toPlainText();
    EXPECT_TRUE(log.startsWith("Project: Stock\n") && log.contains("\nProject: Desk\n"))
        << fromQt(log);
    pressEscape(dialog);
    EXPECT_TRUE(dialog.isVisible()) << "only its own button closes it";
    pressLater(dialog, "OKButton");
  });
  choose("Add-Ins", "Tamrikon", steps);
  EXPECT_TRUE(folder_.has("out/Warehouse-Book.html"));
  EXPECT_FALSE(window_->ide()->hasUnsavedChanges()) << "of numbers that nobody wants in sources";
  EXPECT_TRUE(folder_.has("out/frmDesk.html"));
  EXPECT_TRUE(folder_.has("out/Group+.contents.html")) << "written behind the last project";
  EXPECT_EQ(tabs().windows().size(), 2) << "the code windows are those of before";
  EXPECT_EQ(tabs().current()->module().Name(), "Warehouse");
}

TEST_F(AddInTest, CommentIsEditedFieldByFieldAndUndoneAtOnce) {
  open();
  CodeEditor& editor = show("Warehouse");
  const std::string before = module("Warehouse").Lines(1, module("Warehouse").CountOfLines());
  const int line = 108;  // within Book
  editor.setSelection({line, 1, line, 1});
  ModalSteps steps;
  steps.add("EditComment", [](QWidget& dialog) {
    showTab(dialog, 1);
    type(dialog, "ParamText", "What is booked.");
    showTab(dialog, 2);
    pressLater(dialog, "SelectSeeBtn");
  });
  steps.add("ReferenceSelectDlg", [](QWidget& dialog) {
    auto* modules = dialog.findChild<QComboBox*>("ModuleCombo");
    modules->setFocus();
    QTest::keyClicks(modules, "Supplier");
    auto* members = dialog.findChild<QListWidget*>("MembersList");
    QTest::mouseClick(members->viewport(), Qt::LeftButton, {},
                      members->visualItemRect(members->item(0)).center());
    pressLater(dialog, "cmdOK");
  });
  steps.add("EditComment", [](QWidget& dialog) { pressLater(dialog, "cmdOK"); });
  choose("Code Window", "Comment Editor", steps);

  HostModule& warehouse = module("Warehouse");
  const std::string after = warehouse.Lines(1, warehouse.CountOfLines());
  for (const char* expected :
       {"\r\n'@param        Item What is booked.\r\n", "\r\n'@see          Supplier \r\n"}) {
    EXPECT_NE(after.find(expected), std::string::npos) << after;
  }
  expectSame(editor, warehouse);
  QApplication::processEvents();  // menus know now what can be undone
  trigger("undo");
  EXPECT_EQ(warehouse.Lines(1, warehouse.CountOfLines()), before);
  EXPECT_FALSE(warehouse.isChanged());
}

}  // namespace
}  // namespace tamrikon::test
