#include "toolkit_qt/window_user.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>

namespace tamrikon::test {
namespace {

void clickItem(QAbstractItemView& view, const QModelIndex& index) {
  ASSERT_TRUE(index.isValid()) << view.objectName().toStdString();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
}

QModelIndex itemOf(QListWidget& list, const std::string& text) {
  const auto items = list.findItems(QString::fromStdString(text), Qt::MatchExactly);
  return items.isEmpty() ? QModelIndex() : list.indexFromItem(items.front());
}

}  // namespace

QWidget& WindowUser::window() {
  QWidget* front = QApplication::activeModalWidget();
  if (front == nullptr) throw std::runtime_error("no dialog is shown");
  return *front;
}

void WindowUser::focus(Control& control) {
  QWidget& target = widget(control);
  // Box and caption stand on the left.
  QTest::mouseClick(&target, Qt::LeftButton, {}, {target.height() / 2, target.height() / 2});
}

void WindowUser::type(TextBox& box, const std::string& text) {
  focus(box);
  QMetaObject::invokeMethod(&widget(box), "selectAll");
  typeText(text);
}

void WindowUser::selectTab(TabStrip& strip, const std::string& key) {
  QTabBar& bar = *widget(strip).findChild<QTabBar*>();
  for (std::size_t i = 0; i < strip.tabs().size(); ++i) {
    if (strip.tabs()[i].key != key) continue;
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(static_cast<int>(i)).center());
  }
}

void WindowUser::select(ListBox& list, const std::string& text) {
  auto& view = widget<QListWidget>(list);
  clickItem(view, itemOf(view, text));
}

void WindowUser::doubleClick(ListBox& list, const std::string& text) {
  select(list, text);
  auto& view = widget<QListWidget>(list);
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {},
                     view.visualRect(itemOf(view, text)).center());
}

void WindowUser::check(CheckList& list, const std::string& text, bool checked) {
  auto& view = widget<QListWidget>(list);
  const QModelIndex index = itemOf(view, text);
  clickItem(view, index);
  if (list.isChecked(index.row()) != checked) QTest::keyClick(&view, Qt::Key_Space);
}

void WindowUser::choose(ComboBox& box, const std::string& text) {
  auto& combo = widget<QComboBox>(box);
  combo.setFocus(Qt::MouseFocusReason);
  combo.showPopup();
  const int index = combo.findText(QString::fromStdString(text));
  combo.view()->setCurrentIndex(combo.model()->index(index, 0));
  QTest::keyClick(combo.view(), Qt::Key_Return);
}

void WindowUser::type(ComboBox& box, const std::string& text) {
  auto& combo = widget<QComboBox>(box);
  combo.setFocus(Qt::MouseFocusReason);
  combo.lineEdit()->selectAll();
  typeText(text);
}

void WindowUser::clickCell(Grid& grid, int row, int column) {
  auto& table = widget<QTableWidget>(grid);
  clickItem(table, table.model()->index(row, column));
}

void WindowUser::step(SpinControl& spin, int steps) {
  QWidget& arrow = widget(spin.name() + (steps > 0 ? ".up" : ".down"));
  for (int i = 0; i < std::abs(steps); ++i) QTest::mouseClick(&arrow, Qt::LeftButton);
}

void WindowUser::select(FolderTree& tree, const std::string& path) {
  auto& view = widget<QTreeWidget>(tree);
  QTreeWidgetItem* item = view.topLevelItem(0);
  const QString below = QString::fromStdString(path.substr(tree.root().size()));
  for (const QString& name : below.split('/')) {
    view.expandItem(item);
    item = view.findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
  }
  clickItem(view, view.indexFromItem(item));
}

void WindowUser::press(Key key) {
  static const std::map<Key, Qt::Key> keys = {
      {Key::escape, Qt::Key_Escape}, {Key::enter, Qt::Key_Return}, {Key::down, Qt::Key_Down}};
  press(keys.at(key));
}

void WindowUser::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* target = window().focusWidget();
  QTest::keyClick(target != nullptr ? target : &window(), key, modifiers);
}

void WindowUser::typeText(const std::string& text) {
  for (const char c : text) QTest::keyClick(window().focusWidget(), c);
}

void whenShown(const std::function<void(QWidget&)>& script) {
  QTimer::singleShot(0, qApp, [script] {
    QWidget* front = QApplication::activeModalWidget();
    front != nullptr ? script(*front) : whenShown(script);
  });
}

}  // namespace tamrikon::test
