// A dialog with all kinds of controls, which writes down what they tell it.
#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <functional>
#include <string>

#include "toolkit_qt/window_user.h"

namespace tamrikon::test {

class SampleDialog final : public Dialog {
 public:
  explicit SampleDialog(Toolkit& toolkit);

  /// Shows the dialog, runs the script when it is active, and closes it.
  void show(const std::function<void()>& script);

  /// What has been told since the last call, each event followed by a blank.
  std::string told() { return std::exchange(log_, ""); }

  std::function<void()> activate = [] {};
  std::function<bool()> queryClose = [] { return true; };

  TabStrip Tabs{*this, "Tabs", {{"text", "Texts", ""}, {"list", "Lists & more", ""}}};
  Label NameLabel{*this, "NameLabel", "Name"};
  TextBox Name{*this, "Name", "", "Who <you> are"};
  TextBox Lines{*this, "Lines"};
  TextBox Width{*this, "Width"};
  SpinControl Spin{*this, "Spin", Width, 1, 99};
  CheckBox Check{*this, "Check", "Now & then"};
  Frame Order{*this, "Order", "Order"};
  OptionGroup orders;
  OptionButton ByName{*this, orders, "ByName", "By name"};
  OptionButton ByKind{*this, orders, "ByKind", "By kind"};
  ListBox List{*this, "List"};
  CheckList Checks{*this, "Checks"};
  ComboBox Combo{*this, "Combo"};
  ComboBox Typed{*this, "Typed"};
  Grid Cells{*this, "Cells", {"Name", "Value"}};
  TextBox Cell{*this, "Cell"};
  FolderTree Folders;
  ProgressIndicator Progress{*this, "Progress"};
  StatusBar Status{*this, "Status", 2};
  CommandButton Ok{*this, "Ok", "OK"};
  CommandButton Cancel{*this, "Cancel", "Cancel"};
  CommandButton Nothing{*this, "Nothing", "Nothing"};

 private:
  Layout layout() override;
  void onActivate() override;
  bool onQueryClose() override { return queryClose(); }
  void onKeyDown(KeyEvent& event) override;

  void record(Control& control);
  void tell(const std::string& event) { log_ += event + " "; }

  std::function<void()> script_;
  std::string log_;
};

/// A sample dialog in a real window.
struct RendererTest : testing::Test {
  QtToolkit toolkit;
  SampleDialog dialog{toolkit};
  WindowUser user;

  /// The script begins with the first control in focus and nothing told.
  void show(const std::function<void()>& script) {
    dialog.show([&] {
      dialog.told();
      script();
    });
  }
  void showLists(const std::function<void()>& script) {
    dialog.Tabs.select("list");
    show(script);
  }
};

}  // namespace tamrikon::test
