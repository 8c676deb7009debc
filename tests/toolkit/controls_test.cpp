#include <gtest/gtest.h>

#include <tuple>

#include "support/scripted_toolkit.h"

namespace tamrikon {
namespace {

class Controls final : public Dialog {
 public:
  explicit Controls(Toolkit& toolkit) : Dialog(toolkit, "Controls", "") {}

  TextBox Text1{*this, "Text1"};
  SpinControl UpDown1{*this, "UpDown1", Text1, 10, 500};
  OptionGroup group;
  OptionButton Option2{*this, group, "Option2"};
  ListBox List1{*this, "List1"};
  ComboBox Combo1{*this, "Combo1"};

  Layout layout() override { return {}; }
};

/// Writes down what a renderer would be told.
struct RecordingPeer final : ControlPeer {
  void changed() override { log += "changed "; }
  void itemChanged(int index) override { log += "item " + std::to_string(index) + " "; }
  void textAppended(const std::string& text) override { log += "added " + text + " "; }
  std::string log;
};

struct ControlsTest : testing::Test {
  test::ScriptedToolkit toolkit;
  Controls dialog{toolkit};
  RecordingPeer peer;
};

TEST_F(ControlsTest, PeerIsToldOfWhatChangesAndOfNothingElse) {
  dialog.Text1.attach(&peer);
  dialog.Text1.setText("a\rb\nc");
  dialog.Text1.setText("a\r\nb\r\nc");
  dialog.Text1.setEnabled(true);
  dialog.Text1.appendText("\rd");
  dialog.Text1.appendText("");
  EXPECT_EQ(dialog.Text1.text(), "a\r\nb\r\nc\r\nd");
  EXPECT_EQ(peer.log, "changed added \r\nd ");
}

TEST_F(ControlsTest, HandlersHearTheUserAndNotTheProgram) {
  std::string heard;
  dialog.Text1.onChange = [&] { heard += "change " + dialog.Text1.text() + " "; };
  dialog.Option2.onClick = [&] { heard += "option "; };
  dialog.Combo1.onClick = [&] { heard += "combo " + dialog.Combo1.text() + " "; };
  dialog.Text1.setText("set");
  dialog.Option2.select();
  dialog.Combo1.setItems({"a", "b"});
  dialog.Combo1.select(0);
  EXPECT_EQ(heard, "");
  dialog.Text1.userEdited("set");
  dialog.Text1.userEdited("typed");
  dialog.Option2.userSelected();
  dialog.Combo1.userSelected(1);
  EXPECT_EQ(heard, "change typed option combo b ");
}

TEST_F(ControlsTest, SelectionFollowsTheItemsOfAList) {
  dialog.List1.setItems({"a", "b", "c"});
  dialog.List1.select(2);
  dialog.List1.remove(0);
  EXPECT_EQ(dialog.List1.selectedText(), "c");
  dialog.List1.remove(1);
  EXPECT_EQ(dialog.List1.selected(), -1);
  dialog.Combo1.setItems({"a", "b"});
  dialog.Combo1.setText("x");
  EXPECT_EQ(dialog.Combo1.text(), "") << "only an editable box takes a text of its own";
  dialog.Combo1.setText("b");
  EXPECT_EQ(dialog.Combo1.selected(), 1);
}

TEST_F(ControlsTest, SpinStepsWithinItsRangeFromWhateverTheBoxHolds) {
  using Case = std::tuple<const char*, int, const char*>;
  for (const auto& [text, steps, expected] :
       {Case{"80", 1, "81"}, Case{"500", 1, "500"}, Case{"10", -1, "10"}, Case{"900", -1, "499"},
        Case{"x", 1, "10"}, Case{"8x", 1, "10"}}) {
    dialog.Text1.setText(text);
    dialog.UpDown1.userStepped(steps);
    EXPECT_EQ(dialog.Text1.text(), expected) << text;
  }
}

}  // namespace
}  // namespace tamrikon
