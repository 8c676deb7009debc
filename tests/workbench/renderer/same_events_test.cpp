// What a user does reaches a dialog in the same way, whoever shows it.
#include "support/scripted_toolkit.h"
#include "workbench/renderer/sample_dialog.h"

namespace tamrikon {
namespace {

/// Something that every kind of user can do.
struct Act {
  const char* name;
  std::function<void(test::SampleDialog&, test::User&)> scripted;
  std::function<void(test::SampleDialog&, test::WindowUser&)> real;
  const char* told;
};

void PrintTo(const Act& act, std::ostream* out) {
  *out << act.name;
}

template <typename Do>
Act act(const char* name, const char* told, Do what) {
  return {name, what, what, told};
}

/// On the other page.
template <typename Do>
Act listAct(const char* name, const char* told, Do what) {
  return act(name, told, [what](auto& d, auto& user) {
    user.selectTab(d.Tabs, "list");
    EXPECT_EQ(d.told(), "-Name +Tabs Tabs=1 ");
    what(d, user);
  });
}

const std::vector<Act>& acts() {
  static const std::vector<Act> all = {
      act("Click", "-Name +Nothing Nothing=click ",
          [](auto& d, auto& user) { user.click(d.Nothing); }),
      act("Enter", "key Name.key -Name +Ok Ok=click ",
          [](auto&, auto& user) { user.press(Key::enter); }),
      act("Escape", "key Name.key -Name +Cancel Cancel=click ",
          [](auto&, auto& user) { user.press(Key::escape); }),
      act("Type", "Name=x -Name +Lines Lines=y ",
          [](auto& d, auto& user) {
            user.type(d.Name, "x");
            user.type(d.Lines, "y");
          }),
      act("Check", "-Name +Check Check=yes Check=no ",
          [](auto& d, auto& user) {
            user.check(d.Check, true);
            user.check(d.Check, false);
          }),
      act("Option", "-Name +ByKind ByKind=yes -ByKind +ByName ByName=yes ",
          [](auto& d, auto& user) {
            user.choose(d.ByKind);
            user.choose(d.ByName);
            user.choose(d.ByName);
          }),
      act("Spin", "-Name +Spin Spin=81 Spin=80 ",
          [](auto& d, auto& user) {
            user.step(d.Spin, 1);
            user.step(d.Spin, -1);
          }),
      listAct("List", "-Tabs +List List=b List=b List=c List=c! ",
              [](auto& d, auto& user) {
                user.select(d.List, "b");
                user.select(d.List, "b");
                user.doubleClick(d.List, "c");
              }),
      listAct("CheckList", "-Tabs +Checks Checks=1yes Checks=0no ",
              [](auto& d, auto& user) {
                user.check(d.Checks, "y", true);
                user.check(d.Checks, "x", false);
              }),
      listAct("Combo", "-Tabs +Combo Combo=two Combo=two -Combo +Typed Typed=blue ",
              [](auto& d, auto& user) {
                user.choose(d.Combo, "two");
                user.choose(d.Combo, "two");
                user.choose(d.Typed, "blue");
              }),
      listAct("TypeInCombo", "-Tabs +Typed Typed=z? -Typed +Nothing Nothing=click ",
              [](auto& d, auto& user) {
                user.type(d.Typed, "z");
                user.click(d.Nothing);
              }),
      listAct("Cells", "-Tabs +Cells Cells=left00 Cells=11 key Cells.key Cells=left11 ",
              [](auto& d, auto& user) {
                user.clickCell(d.Cells, 1, 1);
                user.press(Key::down);
              }),
      listAct("Folders", "-Tabs +Folders Folders=/docs/api Folders=/home ",
              [](auto& d, auto& user) {
                user.select(d.Folders, "/docs/api");
                user.select(d.Folders, "/home");
              }),
  };
  return all;
}

class SameEventsTest : public testing::TestWithParam<Act> {};

TEST_P(SameEventsTest, ForScriptedUserAndRealWindow) {
  const Act& act = GetParam();
  test::ScriptedToolkit scripted;
  test::SampleDialog told(scripted);
  scripted.onDialog("SampleDialog", [&](test::User& user) {
    user.focus(told.Name);
    told.told();
    act.scripted(told, user);
    told.close();
  });
  told.showModal();
  EXPECT_EQ(told.told(), act.told) << "the script";

  QtToolkit toolkit;
  test::SampleDialog shown(toolkit);
  shown.show([&] {
    shown.told();
    test::WindowUser user;
    act.real(shown, user);
    EXPECT_EQ(shown.told(), act.told) << "the window";
  });
}

INSTANTIATE_TEST_SUITE_P(, SameEventsTest, testing::ValuesIn(acts()),
                         [](const auto& tested) { return tested.param.name; });

}  // namespace
}  // namespace tamrikon
