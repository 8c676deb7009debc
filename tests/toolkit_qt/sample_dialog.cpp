#include "toolkit_qt/sample_dialog.h"

#include <QCoreApplication>
#include <QTimer>

namespace tamrikon::test {
namespace {

std::vector<std::string> subfolders(const std::string& folder) {
  if (folder == "/") return {"docs", "home"};
  if (folder == "/docs") return {"api"};
  return {};
}

}  // namespace

SampleDialog::SampleDialog(Toolkit& toolkit)
    : Dialog(toolkit, "SampleDialog", "Sample"), Folders(*this, "Folders", subfolders) {
  Ok.setRole(ButtonRole::default_);
  Cancel.setRole(ButtonRole::cancel);
  Lines.setMultiLine(true);
  Width.setText("80");
  List.setItems({"a", "b", "c"});
  Checks.setItems({{"x", true}, {"y", false}});
  Combo.setItems({"one", "two"});
  Typed.setEditable(true);
  Typed.setItems({"red", "blue"});
  for (const char* row : {"r0", "r1", "r2"}) Cells.addRow({row, "v"});
  Folders.setRoot("/");
  for (Control* control : controls()) record(*control);
}

void SampleDialog::record(Control& control) {
  const std::string name = control.name();
  control.onGotFocus = [this, name] { tell("+" + name); };
  control.onLostFocus = [this, name] { tell("-" + name); };
  control.onKeyDown = [this, name](KeyEvent& event) {
    if (event.key != Key::other) tell(name + ".key");
  };
  const auto recordIn = [this, name](auto& handler, auto value) {
    handler = [this, name, value] { tell(name + "=" + value()); };
  };
  const auto isSet = [](bool set) { return std::string(set ? "yes" : "no"); };
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    recordIn(box->onChange, [box] { return box->text(); });
  } else if (auto* button = dynamic_cast<CommandButton*>(&control)) {
    recordIn(button->onClick, [] { return "click"; });
  } else if (auto* check = dynamic_cast<CheckBox*>(&control)) {
    recordIn(check->onClick, [check, isSet] { return isSet(check->isChecked()); });
  } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    recordIn(option->onClick, [option, isSet] { return isSet(option->isSelected()); });
  } else if (auto* list = dynamic_cast<ListBox*>(&control)) {
    recordIn(list->onClick, [list] { return list->selectedText(); });
    recordIn(list->onDblClick, [list] { return list->selectedText() + "!"; });
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    recordIn(combo->onClick, [combo] { return combo->text(); });
    recordIn(combo->onChange, [combo] { return combo->text() + "?"; });
  } else if (auto* strip = dynamic_cast<TabStrip*>(&control)) {
    recordIn(strip->onClick, [strip] { return std::to_string(strip->selected()); });
  } else if (auto* spin = dynamic_cast<SpinControl*>(&control)) {
    recordIn(spin->onChange, [spin] { return spin->buddy().text(); });
  } else if (auto* tree = dynamic_cast<FolderTree*>(&control)) {
    recordIn(tree->onSelectionChanged, [tree] { return tree->selected(); });
  } else if (auto* checks = dynamic_cast<CheckList*>(&control)) {
    checks->onItemCheck = [this, checks, name, isSet](int index) {
      tell(name + "=" + std::to_string(index) + isSet(checks->isChecked(index)));
    };
  } else if (auto* grid = dynamic_cast<Grid*>(&control)) {
    const auto cell = [grid] {
      return std::to_string(grid->currentRow()) + std::to_string(grid->currentColumn());
    };
    recordIn(grid->onClick, cell);
    recordIn(grid->onLeaveCell, [cell] { return "left" + cell(); });
  }
}

void SampleDialog::onKeyDown(KeyEvent& event) {
  if (event.key != Key::other) tell("key");
}

void SampleDialog::show(const std::function<void()>& script) {
  script_ = script;
  showModal();
  EXPECT_FALSE(script_) << "the dialog was never active, or closed too early";
}

void SampleDialog::onActivate() {
  activate();
  if (!isShown() || !script_) return;
  QTimer::singleShot(0, qApp, [this] {
    try {
      std::exchange(script_, nullptr)();
    } catch (const std::exception& failure) {
      ADD_FAILURE() << failure.what();
    }
    close();
  });
}

Layout SampleDialog::layout() {
  return column(
      {tabbed(Tabs, {column({labelled(NameLabel, item(Name).sized(30)), item(Lines).growing(),
                             row({item(Width).sized(4), item(Spin), item(Check)}),
                             framed(Order, item(ByName)), item(ByKind)}),
                     column({row({item(List), item(Checks), item(Folders)}),
                             row({item(Combo), item(Typed)}), gridItem(Cells, {&Cell})})}),
       item(Progress), row({item(Nothing), space(), item(Ok), item(Cancel)}), item(Status)});
}

}  // namespace tamrikon::test
