#include <QComboBox>
#include <QListWidget>
#include <QProgressBar>
#include <QTreeWidget>

#include "toolkit_qt/sample_dialog.h"

namespace tamrikon {
namespace {

struct ListPeersTest : test::RendererTest {
  std::string texts(const ListBox& list) {
    const auto& view = user.widget<QListWidget>(list);
    std::string all;
    for (int i = 0; i < view.count(); ++i) all += view.item(i)->text().toStdString() + " ";
    const auto selected = view.selectedItems();
    return all + (selected.isEmpty() ? "-" : selected.front()->text().toStdString());
  }
};

TEST_F(ListPeersTest, ListFollowsTheProgramAndTellsNothing) {
  showLists([&] {
    dialog.List.select(1);
    dialog.List.add("d");
    EXPECT_EQ(texts(dialog.List), "a b c d b");
    dialog.List.remove(0);
    EXPECT_EQ(texts(dialog.List), "b c d b");
    dialog.List.remove(0);
    EXPECT_EQ(texts(dialog.List), "c d -");
    dialog.List.setItems({"x", "c", "y", "d"});
    EXPECT_EQ(texts(dialog.List), "x c y d -");
    dialog.List.setItems({"c"});
    EXPECT_EQ(texts(dialog.List), "c -");
    dialog.List.setItems({"c", "c"});
    EXPECT_EQ(texts(dialog.List), "c c -");
    EXPECT_EQ(dialog.told(), "");
  });
}

TEST_F(ListPeersTest, ChecksFollowTheProgram) {
  std::vector<CheckList::Item> items(5000, {"item", false});
  dialog.Checks.setItems(items);
  showLists([&] {
    dialog.Checks.setChecked(4999, true);
    auto& view = user.widget<QListWidget>(dialog.Checks);
    EXPECT_EQ(view.count(), 5000);
    EXPECT_EQ(view.item(4999)->checkState(), Qt::Checked);
    EXPECT_EQ(view.item(4998)->checkState(), Qt::Unchecked);
    dialog.Checks.clear();
    EXPECT_EQ(view.count(), 0);
    EXPECT_EQ(dialog.told(), "");
  });
}

TEST_F(ListPeersTest, HandlerMayReplaceTheListThatItIsToldOf) {
  dialog.List.onClick = [&] { dialog.List.setItems({"new"}); };
  dialog.Checks.onItemCheck = [&](int) { dialog.Checks.setItems({{"new", true}}); };
  showLists([&] {
    user.doubleClick(dialog.List, "c");
    EXPECT_EQ(texts(dialog.List), "new -");
    user.check(dialog.Checks, "y", true);
    EXPECT_EQ(user.widget<QListWidget>(dialog.Checks).count(), 1);
  });
}

TEST_F(ListPeersTest, DropDownListFollowsTheProgram) {
  dialog.Combo.select(1);
  dialog.Typed.setText("own");
  showLists([&] {
    const auto& combo = user.widget<QComboBox>(dialog.Combo);
    EXPECT_EQ(combo.currentText(), "two");
    dialog.Combo.setItems({"x", "y"});
    EXPECT_EQ(combo.currentIndex(), -1);
    dialog.Combo.setText("y");
    EXPECT_EQ(combo.currentIndex(), 1);
    const auto& typed = user.widget<QComboBox>(dialog.Typed);
    EXPECT_EQ(typed.currentText(), "own");
    dialog.Typed.setText("blue");
    EXPECT_EQ(typed.currentText(), "blue");
    EXPECT_EQ(dialog.told(), "");
  });
}

TEST_F(ListPeersTest, FolderTreeReadsWhatIsOpened) {
  dialog.Folders.select("/docs/api");
  showLists([&] {
    auto& tree = user.widget<QTreeWidget>(dialog.Folders);
    EXPECT_EQ(tree.currentItem()->text(0), "api");
    EXPECT_TRUE(tree.currentItem()->parent()->isExpanded());
    dialog.Folders.select("/gone");
    EXPECT_TRUE(tree.selectedItems().isEmpty());
    dialog.Folders.setRoot("/docs");
    EXPECT_EQ(tree.topLevelItem(0)->childCount(), 1);
    EXPECT_EQ(dialog.told(), "");
  });
}

TEST_F(ListPeersTest, ProgressIsBusyUntilItIsKnownHowMuchThereIs) {
  show([&] {
    const auto& bar = user.widget<QProgressBar>(dialog.Progress);
    dialog.Progress.setRunning(true);
    EXPECT_EQ(bar.maximum(), 0);
    dialog.Progress.setProgress(std::size_t{3} << 40, std::size_t{4} << 40);
    EXPECT_EQ(bar.value() * 4, bar.maximum() * 3);
    dialog.Progress.setVisible(false);
    EXPECT_FALSE(bar.isVisible());
  });
}

}  // namespace
}  // namespace tamrikon
