#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "toolkit_qt/sample_dialog.h"

namespace tamrikon {
namespace {

using TextPeersTest = test::RendererTest;

TEST_F(TextPeersTest, BoxShowsWhatTheProgramSetsAndTellsNothing) {
  dialog.Lines.setText("set before");
  show([&] {
    auto& lines = user.widget<QPlainTextEdit>(dialog.Lines);
    EXPECT_EQ(lines.toPlainText(), "set before");
    dialog.Lines.setText("a\rb");
    EXPECT_EQ(lines.toPlainText(), "a\nb");
    dialog.Name.setText("\xC3\xA4 & b");
    EXPECT_EQ(user.widget<QLineEdit>(dialog.Name).text(), QString::fromUtf8("\xC3\xA4 & b"));
    dialog.Name.setReadOnly(true);
    EXPECT_TRUE(user.widget<QLineEdit>(dialog.Name).isReadOnly());
    EXPECT_EQ(dialog.told(), "");
  });
}

TEST_F(TextPeersTest, CaretStaysWhereItIsWhileAHandlerChangesTheText) {
  show([&] {
    dialog.Name.setText("abcd");
    auto& box = user.widget<QLineEdit>(dialog.Name);
    box.setCursorPosition(2);
    dialog.Name.onChange = [&] { dialog.Name.setText("ABXCD"); };
    user.typeText("x");
    EXPECT_EQ(box.text(), "ABXCD");
    EXPECT_EQ(box.cursorPosition(), 3);
    box.setSelection(1, 2);
    dialog.Name.setText("ABXCD");
    dialog.Name.setToolTip("new");
    EXPECT_EQ(box.selectedText(), "BX");
  });
}

TEST_F(TextPeersTest, NoBreakSpacesOutliveTyping) {
  dialog.Lines.setText("10\xC2\xA0km\r\n");
  show([&] {
    user.focus(dialog.Lines);
    user.widget<QPlainTextEdit>(dialog.Lines).moveCursor(QTextCursor::End);
    user.typeText("x");
    EXPECT_EQ(dialog.Lines.text(), "10\xC2\xA0km\r\nx");
  });
}

TEST_F(TextPeersTest, LinesThatArePastedIntoOneLineAreJoined) {
  show([&] {
    QGuiApplication::clipboard()->setText("a\nb");
    user.press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(dialog.Name.text(), "a b");
    EXPECT_EQ(user.widget<QLineEdit>(dialog.Name).text(), "a b");
    EXPECT_EQ(dialog.told(), "Name=a b ");
  });
}

TEST_F(TextPeersTest, LogGrowsAtItsEndAndLeavesTheSelectionAlone) {
  dialog.Lines.setReadOnly(true);
  show([&] {
    auto& log = user.widget<QPlainTextEdit>(dialog.Lines);
    dialog.Lines.setText("first\r\n");
    QTextCursor cursor = log.textCursor();
    cursor.select(QTextCursor::WordUnderCursor);
    log.setTextCursor(cursor);
    for (int i = 0; i < 5000; ++i) dialog.Lines.appendText("line " + std::to_string(i) + "\r\n");
    QCoreApplication::processEvents();
    EXPECT_EQ(log.blockCount(), 5002);
    EXPECT_EQ(log.toPlainText().size(), static_cast<int>(dialog.Lines.text().size()) - 5001);
    EXPECT_EQ(log.textCursor().selectedText(), "first");
    EXPECT_GT(log.verticalScrollBar()->value(), 4900);
    EXPECT_EQ(log.verticalScrollBar()->value(), log.verticalScrollBar()->maximum());
    EXPECT_EQ(dialog.told(), "");
  });
}

TEST_F(TextPeersTest, CaptionsShowTheirAmpersandsAndNameTheirBoxes) {
  dialog.NameLabel.setCaption("Name & <b>co</b>\rof it");
  show([&] {
    auto& label = user.widget<QLabel>(dialog.NameLabel);
    EXPECT_EQ(label.text(), "Name && <b>&co</b>\nof it");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    QWidget& box = user.widget(dialog.Name);
    EXPECT_EQ(label.buddy(), &box);
    EXPECT_EQ(box.accessibleName(), "Name & <b>co</b> of it");
    EXPECT_TRUE(box.toolTip().contains("&lt;you&gt;")) << "no tags in a tool tip";
    dialog.NameLabel.setCaption("Who");
    EXPECT_EQ(box.accessibleName(), "Who");
  });
}

}  // namespace
}  // namespace tamrikon
