#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
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

TEST_F(EditingTest, HiddenAttributesSurviveTheirDeclarationBeingEdited) {
  CodeEditor& editor = show("StockItems");
  const int line = module("StockItems").ProcBodyLine("Item", ProcKind::get);
  editor.setSelection({line, 99, line, 99});
  QTest::keyClicks(&editor, " ' one");
  QTest::keyClick(&editor, Qt::Key_Home);
  QTest::keyClick(&editor, Qt::Key_Return);  // the declaration moves down
  QTest::keyClick(&editor, Qt::Key_Backspace);
  expectSame(editor, module("StockItems"));
  trigger("saveAll");
  const std::string saved = bytes("Stock/StockItems.cls");
  const std::size_t edited = saved.find(" ' one\r\n");
  ASSERT_NE(edited, std::string::npos);
  EXPECT_EQ(saved.substr(edited + 8, 69),
            "Attribute Item.VB_Description = \"One article, by number or code.\"\r\nAt");
}

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

TEST_F(EditingTest, TypingIsUndoneByRunsAndOtherEditsByThemselves) {
  CodeEditor& editor = show("StockText");
  HostModule& text = module("StockText");
  const std::string before = text.Lines(1, text.CountOfLines());
  editor.setSelection({3, 1, 3, 1});
  QTest::keyClicks(&editor, "abc");
  QTest::keyClick(&editor, Qt::Key_Left);
  QTest::keyClicks(&editor, "xyz");
  QTest::keyClick(&editor, Qt::Key_Backspace);
  text.InsertLines(1, "' by an add-in");
  QTest::keyClick(&editor, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(text.Lines(3, 1).starts_with("abxyc"));
  QTest::keyClick(&editor, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(text.Lines(3, 1).starts_with("abc"));
  EXPECT_EQ(editor.selection().startColumn, 3);
  QTest::keyClick(&editor, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(text.Lines(1, text.CountOfLines()), before);
  EXPECT_FALSE(text.isChanged());
  QTest::keyClick(&editor, Qt::Key_Y, Qt::ControlModifier);
  EXPECT_TRUE(text.Lines(3, 1).starts_with("abc"));
  expectSame(editor, text);
}

TEST_F(EditingTest, KeysIndent) {
  CodeEditor& editor = show("StockErrors");
  HostModule& module = this->module("StockErrors");
  const auto text = [&](int first, int count) { return module.Lines(first, count); };
  const auto press = [&](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&editor, static_cast<Qt::Key>(key), modifiers);
  };
  module.replaceLines(1, 1, "a\nb\n\n\tc\n  d");
  editor.setSelection({1, 1, 5, 1});
  press(Qt::Key_Tab);
  EXPECT_EQ(text(1, 5), "    a\r\n    b\r\n\r\n        c\r\n  d");
  editor.setSelection({2, 3, 5, 2});
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(text(1, 5), "    a\r\nb\r\n\r\n    c\r\nd");
  trigger("undo");
  EXPECT_EQ(text(4, 2), "        c\r\n  d");
  trigger("outdent");
  editor.setSelection({1, 6, 1, 6});
  press(Qt::Key_Return);
  press(Qt::Key_X);
  press(Qt::Key_Tab);
  EXPECT_EQ(text(1, 2), "    a\r\n    x   ");
  editor.setSelection({1, 3, 1, 3});  // within the blanks, which aren't doubled
  press(Qt::Key_Return);
  EXPECT_EQ(text(1, 2), "  \r\n    a");
  expectSame(editor, module);
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

TEST_F(EditingTest, ModuleWithoutLinesCanBeFilledAndEmptied) {
  put("Empty.bas", "Attribute VB_Name = \"Empty\"\r\n");
  put("One.vbp", "Type=Exe\r\nModule=Empty; Empty.bas\r\n");
  open("One.vbp");
  CodeEditor& editor = show("Empty");
  HostModule& empty = module("Empty");
  EXPECT_EQ(empty.CountOfLines(), 0);
  QTest::keyClicks(&editor, "x");
  EXPECT_EQ(empty.CountOfLines(), 1);
  trigger("undo");
  EXPECT_EQ(empty.CountOfLines(), 0);
  empty.InsertLines(1, "a\r\nb");
  expectSame(editor, empty);
  empty.DeleteLines(1, 2);
  expectSame(editor, empty);
  EXPECT_EQ(editor.blockCount(), 1);
  trigger("undo");
  expectSame(editor, empty);
  EXPECT_EQ(editor.blockCount(), 2);
}

TEST_F(EditingTest, WindowsOverOneFileShowTheSame) {
  put("A.vbp", "Type=Exe\r\nModule=Shared; Shared.bas\r\nName=\"A\"\r\n");
  put("B.vbp", "Type=Exe\r\nModule=Shared; Shared.bas\r\nName=\"B\"\r\n");
  put("Shared.bas", "Attribute VB_Name = \"Shared\"\r\n' one\r\n' two\r\n");
  put("Both.vbg", "VBGROUP 5.0\r\nProject=A.vbp\r\nProject=B.vbp\r\n");
  open("Both.vbg");
  const auto sharedOf = [&](int project) -> HostModule& {
    return *window_->ide()->VBProjects().Item(project).VBComponents().Item(1).CodeModule();
  };
  CodeEditor& first = window_->showCode(sharedOf(1)).editor();
  CodeEditor& second = window_->showCode(sharedOf(2)).editor();
  first.setSelection({2, 3, 2, 3});
  QTest::keyClicks(&second, "xy");
  expectSame(first, sharedOf(1));
  EXPECT_EQ(first.toPlainText(), "xy' one\n' two");
  EXPECT_EQ(tabs().tabText(0), "A - Shared*");
  EXPECT_EQ(tabs().tabText(1), "B - Shared*");
  first.undoWanted();
  EXPECT_EQ(second.toPlainText(), "' one\n' two");
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

TEST_F(EditingTest, LongModulesStayFluent) {
  std::string code = "Attribute VB_Name = \"Long\"\r\n";
  for (int i = 0; i < 5000; ++i) {
    code += "'**\r\n' Does it.\r\nPublic Sub Step" + std::to_string(i) +
            "()\r\n    Call Other(\"text\", 12)\r\nEnd Sub\r\n\r\n";
  }
  put("Long.bas", code);
  put("Long.vbp", "Type=Exe\r\nModule=Long; Long.bas\r\n");
  open("Long.vbp");
  QElapsedTimer timer;
  timer.start();
  CodeEditor& editor = show("Long");
  EXPECT_LT(timer.elapsed(), 8000);  // generous, as sanitizers slow it down
  editor.setSelection({15000, 1, 15000, 1});
  timer.restart();
  for (int i = 0; i < 50; ++i) {
    QTest::keyClicks(&editor, "x");
    QTest::keyClick(&editor, Qt::Key_Return);
    QApplication::processEvents();
  }
  EXPECT_LT(timer.elapsed() / 100, 60);  // milliseconds a key
  EXPECT_EQ(module("Long").CountOfLines(), 30050);
}

}  // namespace
}  // namespace tamrikon::test
