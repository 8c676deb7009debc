#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "workbench_fixture.h"

namespace tamrikon::test {
namespace {

class FindingTest : public WorkbenchTest {
 protected:
  void SetUp() override {
    WorkbenchTest::SetUp();
    open();
    module_ = &module("StockErrors");
    module_->replaceLines(1, module_->CountOfLines(),
                          "Item items\r\nnone\r\n\u00C4 ITEM item\r\nend");
    editor_ = &window_->showCode(*module_).editor();
    editor_->setSelection({1, 1, 1, 1});
  }

  void type(const char* box, const QString& text) {
    auto* edit = window_->findChild<QLineEdit*>(box);
    edit->clear();
    QTest::keyClicks(edit, text);
  }
  void click(const char* button) {
    QTest::mouseClick(window_->findChild<QPushButton*>(button), Qt::LeftButton);
  }
  std::string status() { return fromQt(window_->findChild<QLabel*>("findStatus")->text()); }

  /// The selection as "line:column+length".
  std::string found() {
    const Selection at = editor_->selection();
    return std::to_string(at.startLine) + ':' + std::to_string(at.startColumn) + '+' +
           std::to_string(at.endColumn - at.startColumn);
  }

  CodeEditor* editor_ = nullptr;
  HostModule* module_ = nullptr;
};

TEST_F(FindingTest, GoesFromMatchToMatchAndRound) {
  trigger("find");
  type("findText", "item");
  EXPECT_EQ(found(), "1:1+4");
  for (const char* place : {"1:6+4", "3:3+4", "3:8+4", "1:1+4"}) {
    trigger("findNext");
    EXPECT_EQ(found(), place);
  }
  EXPECT_EQ(status(), "Went on from the top");
  for (const char* place : {"3:8+4", "3:3+4"}) {
    trigger("findPrevious");
    EXPECT_EQ(found(), place);
  }
  window_->findChild<QCheckBox*>("wholeWord")->setChecked(true);
  window_->findChild<QCheckBox*>("matchCase")->setChecked(true);
  EXPECT_EQ(found(), "3:8+4");
  trigger("findNext");
  EXPECT_EQ(found(), "3:8+4");
  type("findText", "itemx");
  EXPECT_EQ(status(), "Not found");
  QTest::keyClick(window_->findChild<QLineEdit*>("findText"), Qt::Key_Escape);
  EXPECT_FALSE(window_->findChild<FindBar*>()->isVisible());
}

TEST_F(FindingTest, ReplacesOneOrAllInOneStep) {
  trigger("replace");
  type("findText", "item");
  type("replaceText", "itemitem");
  click("replaceOne");
  EXPECT_EQ(module_->Lines(1, 1), "itemitem items");
  EXPECT_EQ(found(), "1:10+4");
  click("replaceAll");
  EXPECT_EQ(status(), "5 replaced");
  EXPECT_EQ(module_->Lines(1, 4),
            "itemitemitemitem itemitems\r\nnone\r\n\u00C4 itemitem itemitem\r\nend");
  expectSame(*editor_, *module_);
  trigger("undo");
  EXPECT_EQ(module_->Lines(1, 3), "itemitem items\r\nnone\r\n\u00C4 ITEM item");
}

TEST_F(FindingTest, KeysOfTheBarFindAndReplace) {
  editor_->setSelection({3, 3, 3, 7});
  trigger("replace");
  auto* text = window_->findChild<QLineEdit*>("findText");
  auto* with = window_->findChild<QLineEdit*>("replaceText");
  EXPECT_EQ(text->text(), "ITEM");  // what was selected
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(found(), "3:8+4");
  QTest::keyClick(text, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(found(), "3:3+4");
  QTest::keyClick(text, Qt::Key_Tab);
  EXPECT_TRUE(with->hasFocus());
  QTest::keyClicks(with, "x");
  QTest::keyClick(with, Qt::Key_Return);
  EXPECT_EQ(module_->Lines(3, 1), "\u00C4 x item");
  EXPECT_EQ(found(), "3:5+4");
  editor_->setSelection({2, 1, 2, 3});  // something else: found first, and not replaced
  click("replaceOne");
  EXPECT_EQ(module_->Lines(2, 2), "none\r\n\u00C4 x item");
  EXPECT_EQ(found(), "3:5+4");
  type("findText", "");
  EXPECT_FALSE(window_->findChild<QPushButton*>("replaceAll")->isEnabled());
  trigger("undo");
  trigger("undo");
  trigger("closeProject");
  trigger("findNext");  // there is nothing to look in
}

TEST_F(FindingTest, ListsMatchesOfTheProject) {
  editor_->setSelection({2, 1, 2, 5});
  trigger("findInProject");
  auto& list = *window_->findChild<MessageList*>();
  EXPECT_TRUE(list.isVisible());
  ASSERT_GE(list.count(), 2);
  EXPECT_TRUE(list.item(0)->text().endsWith(QString::fromUtf8("of “none” in Stock")));
  QListWidgetItem* place = list.findItems("StockErrors (2): none", Qt::MatchExactly).value(0);
  ASSERT_NE(place, nullptr);
  show("Warehouse");
  list.setCurrentItem(place);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(&tabs().current()->module(), module_);
  EXPECT_EQ(found(), "2:1+4");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "StockErrors (2): none");
}

TEST_F(FindingTest, ProcedureBoxFollowsTheCaretAndLeads) {
  CodeEditor& editor = show("StockItem");
  HostModule& item = module("StockItem");
  auto& box = *tabs().current()->findChild<QComboBox*>("procedureBox");
  EXPECT_EQ(box.currentText(), "(Declarations)");
  EXPECT_EQ(box.itemText(1), "AddBreak");
  const int body = item.ProcBodyLine("Price", ProcKind::let);
  editor.goToLine(body + 1);
  EXPECT_EQ(box.currentText(), "Price [Let]");

  const auto choose = [&](const QString& label) {
    const int index = box.findText(label);
    ASSERT_GE(index, 0);
    box.setCurrentIndex(index);
    emit box.activated(index);
  };
  // An edit moves the procedures: a choice that comes before the list has followed leads right too.
  item.InsertLines(item.ProcStartLine("AddBreak", ProcKind::procedure),
                   "Sub More()\r\nEnd Sub\r\n");
  choose("Price [Get]");
  EXPECT_EQ(editor.caretLine(), item.ProcBodyLine("Price", ProcKind::get));
  item.InsertLines(item.CountOfLines() + 1, "Sub Added()\r\nEnd Sub");
  EXPECT_TRUE(QTest::qWaitFor([&] { return box.findText("Added") > 0; }));
  choose("(Declarations)");
  EXPECT_EQ(editor.caretLine(), 1);
}

TEST_F(FindingTest, GoesToALineAndZooms) {
  prompts_.line = 3;
  trigger("goToLine");
  EXPECT_EQ(editor_->caretLine(), 3);
  EXPECT_EQ(window_->findChild<QLabel*>("caretPlace")->text(), "Ln 3, Col 1");
  const int size = editor_->font().pointSize();
  trigger("zoomIn");
  EXPECT_EQ(editor_->font().pointSize(), size + 1);
  start();
  open();
  EXPECT_EQ(show("Warehouse").font().pointSize(), size + 1);
  trigger("zoomReset");
  EXPECT_EQ(show("Warehouse").font().pointSize(), size);
}

}  // namespace
}  // namespace tamrikon::test
