// Plays the part of the user in real windows: clicks and types in the widgets of the dialog in
// front, and fails the test where there are none.
#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QTest>
#include <QWidget>
#include <functional>
#include <string>

#include "toolkit/buttons.h"
#include "toolkit/dialog.h"
#include "toolkit/folder_tree.h"
#include "toolkit/list_controls.h"
#include "toolkit/value_controls.h"
#include "toolkit_qt/qt_toolkit.h"

namespace tamrikon::test {

/// The operations are those of test::User.
class WindowUser {
 public:
  /// The widget of that name in the dialog in front. Throws if there is none.
  template <typename Widget = QWidget>
  static Widget& widget(const std::string& name) {
    auto* found = window().findChild<Widget*>(QString::fromStdString(name));
    if (found == nullptr) throw std::runtime_error("there is no widget " + name);
    return *found;
  }
  template <typename Widget = QWidget>
  static Widget& widget(const Control& control) {
    return widget<Widget>(control.name());
  }
  static QWidget& window();

  void focus(Control& control);
  void click(CommandButton& button) { focus(button); }
  void check(CheckBox& box, bool) { focus(box); }
  void choose(OptionButton& option) { focus(option); }
  void type(TextBox& box, const std::string& text);
  void selectTab(TabStrip& strip, const std::string& key);
  void select(ListBox& list, const std::string& text);
  void doubleClick(ListBox& list, const std::string& text);
  void check(CheckList& list, const std::string& text, bool checked);
  void choose(ComboBox& box, const std::string& text);
  void type(ComboBox& box, const std::string& text);
  void clickCell(Grid& grid, int row, int column);
  void step(SpinControl& spin, int steps);
  void select(FolderTree& tree, const std::string& path);
  void press(Key key);

  /// To whatever has the focus.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void typeText(const std::string& text);
};

/// Runs the script when a window other than a dialog of the toolkit is in front.
void whenShown(const std::function<void(QWidget&)>& script);

}  // namespace tamrikon::test
