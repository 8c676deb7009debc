#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QTextBlock>
#include <random>

#include "workbench_fixture.h"

namespace tamrikon::test {
namespace {

class EditingTest : public WorkbenchTest {
 protected:
  void SetUp() override {
    WorkbenchTest::SetUp();
    open();
  }
};

TEST_F(EditingTest, EditsFromElsewhereLeaveCaretAndScrollWhereTheyAre) {
  CodeEditor& editor = show("Warehouse");
  HostModule& warehouse = module("Warehouse");
  editor.setTopLine(60);
  editor.setSelection({70, 3, 70, 5});
  const QString top = editor.document()->findBlockByNumber(59).text();
  warehouse.InsertLines(10, "' one\r\n' two");
  expectSame(editor, warehouse);
  EXPECT_EQ(editor.topLine(), 62);
  EXPECT_EQ(editor.document()->findBlockByNumber(61).text(), top);
  EXPECT_EQ(editor.selection().startLine, 72);
  EXPECT_EQ(editor.selection().endColumn, 5);

  warehouse.InsertLines(73, "' below");
  EXPECT_EQ(editor.selection().startLine, 72);
  warehouse.DeleteLines(1, 20);
  expectSame(editor, warehouse);
  EXPECT_EQ(editor.topLine(), 42);

  trigger("undo");
  trigger("undo");
  trigger("undo");
  EXPECT_FALSE(warehouse.canUndo());
  EXPECT_EQ(editor.caretLine(), 10);  // where something changed last
  trigger("redo");
  EXPECT_EQ(editor.document()->findBlockByNumber(10).text(), "' two");
  expectSame(editor, warehouse);

  warehouse.DeleteLines(80, 12);
  editor.setTopLine(1);
  trigger("undo");
  EXPECT_LE(editor.topLine(), 80) << "all that came back is in view";
  EXPECT_GT(editor.topLine(),
            91 - editor.viewport()->height() / editor.fontMetrics().lineSpacing());
}

TEST_F(EditingTest, ClipboardKeepsEveryCharacter) {
  CodeEditor& editor = show("StockErrors");
  HostModule& module = this->module("StockErrors");
  const std::string odd = "a\u00A0b\u2028c \U0001F600";
  module.replaceLines(1, 1, odd);
  editor.setSelection({1, 1, 2, 1});
  trigger("copy");
  EXPECT_EQ(fromQt(QApplication::clipboard()->text()), odd + "\n");
  editor.setSelection({1, 1, 1, 1});
  QApplication::clipboard()->setText(toQt("one\r\ntwo\rthree " + odd));
  trigger("paste");
  EXPECT_EQ(module.Lines(1, 3), "one\r\ntwo\r\nthree " + odd + odd);
  expectSame(editor, module);
  QApplication::clipboard()->setText("\tfour\n  \t\tfive\t\n");
  trigger("paste");
  EXPECT_TRUE(module.Lines(4, 1).starts_with("        five\t"));
  expectSame(editor, module);
}

TEST_F(EditingTest, AnyRunOfEditsKeepsEditorAndModuleTheSame) {
  CodeEditor& editor = show("StockText");
  HostModule& module = this->module("StockText");
  const std::string before = module.Lines(1, module.CountOfLines());
  std::mt19937 random(20260101);
  const auto upTo = [&](int most) { return std::uniform_int_distribution(0, most)(random); };
  const auto line = [&] { return 1 + upTo(std::max(module.CountOfLines() - 1, 0)); };
  for (int i = 0; i < 600; ++i) {
    const int first = line();
    editor.setSelection({first, 1 + upTo(30), upTo(3) == 0 ? line() : first, 1 + upTo(30)});
    switch (upTo(12)) {
      case 12: {  // in one edit at two places, as when a text is dragged
        QTextCursor cursor = editor.textCursor();
        QTextCursor other(editor.document()->findBlockByNumber(line() - 1));
        cursor.beginEditBlock();
        const QString moved = cursor.selectedText();
        cursor.removeSelectedText();
        other.insertText(moved + "d");
        cursor.endEditBlock();
        break;
      }
      case 0: editor.insertSource("a\n\nb\u00E9"); break;
      case 1: editor.insertSource("\n"); break;
      case 2: QTest::keyClick(&editor, Qt::Key_Backspace); break;
      case 3: QTest::keyClick(&editor, Qt::Key_Delete); break;
      case 4: editor.indentSelection(); break;
      case 5: editor.outdentSelection(); break;
      case 6: module.InsertLines(first, "' in\r\n"); break;
      case 7:
        module.DeleteLines(first, std::min(upTo(9), module.CountOfLines() - first + 1));
        break;
      case 8: trigger("undo"); break;
      case 9: trigger("redo"); break;
      case 10: module.replaceLines(first, std::min(module.CountOfLines(), 1), "' a\n' b"); break;
      default: QTest::keyClicks(&editor, "q "); break;
    }
    expectSame(editor, module);
    if (HasFailure()) FAIL() << "after step " << i;
  }
  while (module.undo()) continue;
  EXPECT_EQ(module.Lines(1, module.CountOfLines()), before);
  expectSame(editor, module);
}

TEST_F(EditingTest, ALineMovedByDraggingLeavesThoseBetweenAlone) {
  const std::string before = bytes("Stock/StockItems.cls");
  CodeEditor& editor = show("StockItems");
  QTextCursor from(editor.document()->firstBlock().next());
  from.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
  const QString line = from.selectedText().chopped(1);
  QTextCursor to(editor.document());
  to.movePosition(QTextCursor::End);
  to.beginEditBlock();
  from.removeSelectedText();
  to.insertText('\n' + line);
  to.endEditBlock();
  trigger("save");
  std::string expected = before;
  const std::size_t at = expected.find(fromQt(line) + "\r\n");
  expected.erase(at, static_cast<std::size_t>(line.size()) + 2);
  EXPECT_EQ(bytes("Stock/StockItems.cls"), expected + fromQt(line) + "\r\n");
}

TEST_F(EditingTest, InputMethodsTypeAndOverwritingShows) {
  CodeEditor& editor = show("StockErrors");
  HostModule& module = this->module("StockErrors");
  const auto compose = [&](const QString& shown, const QString& committed) {
    QInputMethodEvent event(shown, {});
    event.setCommitString(committed);
    QApplication::sendEvent(&editor, &event);
  };
  module.replaceLines(1, 1, "abc");
  editor.setSelection({1, 1, 1, 1});
  compose(QString::fromUtf8("\u3042"), {});
  EXPECT_EQ(module.Lines(1, 1), "abc");  // not before it is committed
  compose({}, QString::fromUtf8("\u4E9C"));
  compose({}, QString::fromUtf8("\u4E9C"));
  EXPECT_EQ(module.Lines(1, 1), "\u4E9C\u4E9Cabc");
  QTest::keyClick(&editor, Qt::Key_Insert);
  EXPECT_EQ(window_->findChild<QLabel*>("caretPlace")->text(), "OVR  Ln 1, Col 3");
  QTest::keyClicks(&editor, "x");
  EXPECT_EQ(module.Lines(1, 1), "\u4E9C\u4E9Cxbc");
  trigger("undo");
  EXPECT_EQ(module.Lines(1, 1), "\u4E9C\u4E9Cabc");
  trigger("undo");
  EXPECT_EQ(module.Lines(1, 1), "abc");  // one run of typing
  expectSame(editor, module);
}

TEST_F(EditingTest, AMarginPressSelectsTheLine) {
  CodeEditor& editor = show("Warehouse");
  auto* margin = editor.findChild<QWidget*>("lineNumbers");
  const int height = editor.fontMetrics().lineSpacing();
  QTest::mouseClick(margin, Qt::LeftButton, Qt::NoModifier, QPoint(5, height * 2 + height));
  const Selection selected = editor.selection();
  EXPECT_EQ(selected.endLine, selected.startLine + 1);
  EXPECT_EQ(selected.startColumn + selected.endColumn, 2);
  const int narrow = margin->width();
  module("Warehouse").InsertLines(1, std::string(2000, '\r'));
  EXPECT_GT(margin->width(), narrow);  // for the fourth digit
}

TEST_F(EditingTest, ColoursFollowThePalette) {
  CodeEditor& editor = show("Warehouse");
  const auto keyword = [&] {
    QApplication::processEvents();
    const QTextBlock block = editor.document()->find("Option Explicit").block();
    return block.layout()->formats().value(0).format.foreground().color();
  };
  const QColor onLight = keyword();
  QPalette dark = editor.palette();
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::white);
  editor.setPalette(dark);
  EXPECT_GT(keyword().lightness(), onLight.lightness());
}

TEST_F(EditingTest, GoesToALineAndZooms) {
  CodeEditor& editor = show("StockErrors");
  prompts_.line = 3;
  trigger("goToLine");
  EXPECT_EQ(editor.caretLine(), 3);
  EXPECT_EQ(window_->findChild<QLabel*>("caretPlace")->text(), "Ln 3, Col 1");
  const int size = editor.font().pointSize();
  trigger("zoomIn");
  EXPECT_EQ(editor.font().pointSize(), size + 1);
  start();
  open();
  EXPECT_EQ(show("Warehouse").font().pointSize(), size + 1);
  trigger("zoomReset");
  EXPECT_EQ(show("Warehouse").font().pointSize(), size);
}

}  // namespace
}  // namespace tamrikon::test
