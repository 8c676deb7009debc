#include <QTableWidget>

#include "toolkit_qt/sample_dialog.h"

namespace tamrikon {
namespace {

/// Cells are edited as programs do it: the box opens on a click, Enter and leaving it take the text
/// over, Esc doesn't.
struct GridPeerTest : test::RendererTest {
  GridPeerTest() {
    dialog.Cells.onClick = [this] {
      dialog.Cell.setText(cell());
      dialog.Cells.openBox(dialog.Cell, lines);
    };
    dialog.Cell.onLostFocus = [this] {
      if (dialog.Cells.openedBox() == nullptr) return;
      dialog.Cells.setCell(dialog.Cells.currentRow(), dialog.Cells.currentColumn(),
                           dialog.Cell.text());
      dialog.Cells.closeBox();
    };
    dialog.Cell.onKeyDown = [this](KeyEvent& event) {
      if (event.key != Key::enter && event.key != Key::escape) return;
      event.handled = true;
      if (event.key == Key::escape) dialog.Cells.closeBox();
      dialog.Cells.setFocus();
    };
  }

  const std::string& cell() const {
    return dialog.Cells.cell(dialog.Cells.currentRow(), dialog.Cells.currentColumn());
  }
  QTableWidget& table() { return user.widget<QTableWidget>(dialog.Cells); }
  QLineEdit& box() { return user.widget<QLineEdit>(dialog.Cell); }

  int lines = 1;
};

TEST_F(GridPeerTest, BoxLiesOverItsCellAndTakesTheTyping) {
  showLists([&] {
    EXPECT_FALSE(box().isVisible());
    user.clickCell(dialog.Cells, 1, 0);
    EXPECT_TRUE(box().hasFocus());
    EXPECT_EQ(box().selectedText(), "r1");
    EXPECT_EQ(box().geometry(), table().visualItemRect(table().item(1, 0)));
    user.typeText("new");
    user.press(Key::enter);
    EXPECT_FALSE(box().isVisible());
    EXPECT_TRUE(table().hasFocus());
    EXPECT_EQ(dialog.Cells.cell(1, 0), "new");
    EXPECT_EQ(table().item(1, 0)->text(), "new");
    EXPECT_TRUE(dialog.isShown()) << "Enter was handled, and presses no button";
  });
}

TEST_F(GridPeerTest, ClickOnAnotherCellTakesTheTextOverFirst) {
  showLists([&] {
    user.clickCell(dialog.Cells, 0, 0);
    user.typeText("x");
    user.clickCell(dialog.Cells, 2, 1);
    EXPECT_EQ(dialog.Cells.cell(0, 0), "x");
    EXPECT_EQ(box().text(), "v");
    EXPECT_EQ(box().geometry(), table().visualItemRect(table().item(2, 1)));
    user.click(dialog.Nothing);
    EXPECT_FALSE(box().isVisible());
  });
}

TEST_F(GridPeerTest, TypedCharacterOpensTheBoxAndReplacesTheText) {
  showLists([&] {
    dialog.Cells.setFocus();
    user.press(Key::down);
    user.press(Qt::Key_Right);
    user.press(Qt::Key_End, Qt::ControlModifier);
    user.press(Qt::Key_Home);
    user.typeText("new");
    EXPECT_EQ(dialog.Cell.text(), "new");
    dialog.Ok.setFocus();
    EXPECT_EQ(dialog.Cells.cell(2, 0), "new");
    dialog.Cells.setFocus();
    user.press(Qt::Key_F2);
    EXPECT_EQ(box().selectedText(), "new");
  });
}

TEST_F(GridPeerTest, ProgramChangesRowsAndTheCurrentCell) {
  showLists([&] {
    dialog.Cells.addRow({"a\r\nb", "new"});
    dialog.Cells.setCurrent(3, 1);
    EXPECT_EQ(table().rowCount(), 4);
    EXPECT_EQ(table().item(3, 0)->text(), QString::fromUtf8("a \xE2\x80\xA6")) << "one line";
    EXPECT_EQ(table().currentRow(), 3);
    dialog.Cells.removeRow(0);
    EXPECT_EQ(table().item(0, 0)->text(), "r1");
    EXPECT_EQ(table().currentRow(), 0);
    EXPECT_TRUE(table().item(0, 1)->isSelected());
    dialog.Cells.clear();
    EXPECT_EQ(table().rowCount(), 0);
    user.press(Key::down);
    EXPECT_EQ(dialog.Cells.currentRow(), -1);
  });
}

}  // namespace
}  // namespace tamrikon
