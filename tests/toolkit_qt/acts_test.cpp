// What a user does, and what a dialog is told of it: the same from a script and from a real window.
// Each paragraph of tests/data/toolkit_qt/acts.txt holds acts, and below each what is told; those
// of window_acts.txt are about keys that only a window knows.
#include <fstream>
#include <iterator>
#include <sstream>

#include "base/text.h"
#include "support/scripted_toolkit.h"
#include "toolkit_qt/sample_dialog.h"

namespace tamrikon {
namespace {

std::vector<std::string> paragraphs(const std::string& name) {
  std::ifstream file(TAMRIKON_TEST_DATA "/toolkit_qt/" + name);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  std::vector<std::string> result;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find("\n\n", start), text.size() - 1) + 1;
    result.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return result;
}

/// Does `act` if the control is of that kind.
template <typename Kind, typename Act>
void on(Control& control, Act act) {
  if (auto* own = dynamic_cast<Kind*>(&control)) act(*own);
}

template <typename User>
void press(User& user, const std::string& key) {
  static const std::map<std::string, Key> keys = {
      {"Enter", Key::enter}, {"Escape", Key::escape}, {"Down", Key::down}};
  if constexpr (std::is_same_v<User, test::WindowUser>) {
    if (keys.count(key) == 0) {
      const QKeyCombination pressed = QKeySequence(QString::fromStdString(key))[0];
      return user.press(pressed.key(), pressed.keyboardModifiers());
    }
  }
  user.press(keys.at(key));
}

/// Does what a line says: a verb, a control, and what else the verb needs.
template <typename User>
void perform(const std::string& line, test::SampleDialog& dialog, User& user) {
  std::istringstream words(line);
  std::string verb, name, text, more;
  words >> verb >> name >> text >> more;
  if (verb == "press") return press(user, name);
  if (verb == "tab") return user.selectTab(dialog.Tabs, name);
  for (Control* control : dialog.controls()) {
    if (control->name() != name) continue;
    if (verb == "focus") user.focus(*control);
    if (verb == "disable") control->setEnabled(false);
    if (verb == "lock") on<TextBox>(*control, [](auto& box) { box.setReadOnly(true); });
    if (verb == "click") on<CommandButton>(*control, [&](auto& button) { user.click(button); });
    if (verb == "type") {
      on<TextBox>(*control, [&](auto& box) { user.type(box, text); });
      on<ComboBox>(*control, [&](auto& box) { user.type(box, text); });
    }
    if (verb == "check") {
      on<CheckBox>(*control, [&](auto& box) { user.check(box, text == "yes"); });
      on<CheckList>(*control, [&](auto& list) { user.check(list, text, more == "yes"); });
    }
    if (verb == "choose") {
      on<OptionButton>(*control, [&](auto& option) { user.choose(option); });
      on<ComboBox>(*control, [&](auto& box) { user.choose(box, text); });
    }
    if (verb == "select") {
      on<ListBox>(*control, [&](auto& list) { user.select(list, text); });
      on<FolderTree>(*control, [&](auto& tree) { user.select(tree, text); });
    }
    if (verb == "double") on<ListBox>(*control, [&](auto& l) { user.doubleClick(l, text); });
    if (verb == "step") on<SpinControl>(*control, [&](auto& s) { user.step(s, std::stoi(text)); });
    if (verb == "cell") {
      on<Grid>(*control, [&](auto& g) { user.clickCell(g, std::stoi(text), std::stoi(more)); });
    }
  }
}

/// The acts of a paragraph with what the dialog is told of each.
template <typename User>
std::string told(const std::string& paragraph, test::SampleDialog& dialog, User& user) {
  std::string result;
  for (const std::string_view view : split(paragraph, '\n')) {
    const std::string line(view);
    if (line.empty() || line.starts_with("  ")) continue;
    result += line + '\n';
    if (line.starts_with('#')) continue;
    perform(line, dialog, user);
    const std::string events = replaceAll(dialog.told(), "\r\n", "\\n");
    if (!events.empty()) result += "  " + events.substr(0, events.size() - 1) + '\n';
  }
  return result;
}

std::string inWindow(const std::string& paragraph) {
  QtToolkit toolkit;
  test::SampleDialog dialog(toolkit);
  std::string result;
  dialog.show([&] {
    dialog.told();
    test::WindowUser user;
    result = told(paragraph, dialog, user);
  });
  return result;
}

class ActsTest : public testing::TestWithParam<std::string> {};
class WindowActsTest : public testing::TestWithParam<std::string> {};

std::string nameOf(const testing::TestParamInfo<std::string>& tested) {
  return tested.param.substr(2, tested.param.find('\n') - 2);
}

TEST_P(ActsTest, AreToldAlikeByScriptAndWindow) {
  test::ScriptedToolkit toolkit;
  test::SampleDialog dialog(toolkit);
  toolkit.onDialog("SampleDialog", [&](test::User& user) {
    user.focus(dialog.Name);
    dialog.told();
    EXPECT_EQ(told(GetParam(), dialog, user), GetParam()) << "the script";
    dialog.close();
  });
  dialog.showModal();
  EXPECT_EQ(inWindow(GetParam()), GetParam()) << "the window";
}

TEST_P(WindowActsTest, AreTold) {
  EXPECT_EQ(inWindow(GetParam()), GetParam());
}

INSTANTIATE_TEST_SUITE_P(, ActsTest, testing::ValuesIn(paragraphs("acts.txt")), nameOf);
INSTANTIATE_TEST_SUITE_P(, WindowActsTest, testing::ValuesIn(paragraphs("window_acts.txt")),
                         nameOf);

}  // namespace
}  // namespace tamrikon
