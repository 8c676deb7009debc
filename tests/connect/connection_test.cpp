// How the add-in gets into an IDE and out of it, also where that fails.
#include <algorithm>
#include <map>

#include "connect/connect_fixture.h"
#include "connect/item_faces.h"

namespace tamrikon::test {
namespace {

struct Expected {
  const char* bar;
  const char* caption;
  const char* toolTip;
  int bitmap;
  const char* failure;
  std::unique_ptr<CommandBarEvents> connect::*source;
};

const Expected kItems[] = {
    {"Add-Ins", "Tamrikon", "", 101, "Cannot create Tamrikon item in Add-Ins menu.",
     &connect::MenuHandler},
    {"Code Window", "Add Tamrikon Comment", "Insert Tamrikon comment directly into source code",
     102, "Cannot create 'Add Tamrikon Comment' item in code window pop-up menu.",
     &connect::CodeMenuHandler},
    {"Code Window", "Comment Editor", "Start Comment editor for selected element", 103,
     "Cannot create 'Comment editor' item in code window pop-up menu.",
     &connect::CodeMenuHandlerEditor},
    {"Code Window", "Copy Selection as Code", "Copy selected lines to clipboard as code example",
     100, "Cannot create 'Copy as Code' item in code window pop-up menu.",
     &connect::CodeMenuHandlerCopy},
    {"Standard", "Tamrikon", "Tamrikon", 101, "Cannot create Tamrikon item in Standard toolbar.",
     &connect::ToolbarHandler},
};
constexpr std::uint32_t kColourChange = 0x15;

class ConnectionTest : public ConnectTest {
 protected:
  std::size_t itemCount() const {
    std::size_t count = 0;
    for (const auto& bar : ide_->bars.bars) count += bar->items.size();
    return count;
  }
  std::size_t sourceCount() const {
    std::size_t count = 0;
    for (const Expected& item : kItems) count += addIn_->self.*item.source != nullptr;
    return count;
  }
  bool isWindowHooked() {
    const std::size_t before = ide_->calls.names.size();
    ide_->send(kColourChange);
    return ide_->calls.names.size() > before;
  }
  void expectConnected() {
    EXPECT_TRUE(sourceCount() == 5 && addIn_->self.ProjectHandler && isWindowHooked());
  }
};

TEST_F(ConnectionTest, EveryConnectionMakesTheItemsAnew) {
  ScriptedBar& standard = *ide_->bars.find("Standard");
  for (int n = 0; n < 3; ++n) standard.Add(ControlType::button, 0);
  for (int n = 0; n < 2; ++n) {
    connectIn(ConnectMode::startup);
    connectIn(ConnectMode::startup);                         // also where it wasn't disconnected
    std::map<ScriptedBar*, std::size_t> at{{&standard, 2}};  // before the last one
    for (const Expected& item : kItems) {
      ScriptedBar& bar = *ide_->bars.find(item.bar);
      const ScriptedControl& control = *bar.items.at(at[&bar]++);
      EXPECT_EQ(control.caption, item.caption);
      EXPECT_EQ(control.toolTip, item.toolTip) << item.caption;
      EXPECT_EQ(control.face.pixels, loadFace(item.bitmap, 0xF0F0F0).pixels) << item.caption;
    }
    EXPECT_EQ(itemCount(), 8u);
    expectConnected();
    disconnect();
    EXPECT_EQ(itemCount(), 3u);
    EXPECT_FALSE(sourceCount() > 0 || addIn_->self.ProjectHandler || isWindowHooked());
  }
  EXPECT_TRUE(toolkit_.boxes.empty());
}

TEST_F(ConnectionTest, MissingBarIsToldOnceAndEndsTheConnection) {
  using Bars = std::vector<std::string>;
  for (const auto& [bars, made] : {std::pair<Bars, std::size_t>{{"Standard", "Code Window"}, 0},
                                   {{"Add-Ins", "Standard"}, 1},
                                   {{"Add-Ins", "Tools", "Code Window"}, 5}}) {
    toolkit_.boxes.clear();
    addIn_.reset();
    ide_ = std::make_unique<ScriptedIde>(toolkit_, bars);
    makeAddIn();
    connectIn(ConnectMode::startup);
    EXPECT_TRUE(itemCount() == made && sourceCount() == made);
    if (made == 5) {  // the second bar serves as the standard one
      expectConnected();
      continue;
    }
    ASSERT_EQ(toolkit_.boxes.size(), 1u);
    EXPECT_EQ(toolkit_.boxes[0].text, kItems[made].failure);
    EXPECT_FALSE(addIn_->self.ProjectHandler || isWindowHooked());
  }
}

TEST_F(ConnectionTest, AnyCallMayFail) {
  openBoth();
  for (std::size_t n = 1;; ++n) {
    toolkit_.boxes.clear();
    ide_->calls.failNext(n);
    connectIn(ConnectMode::afterStartup);
    const std::vector<std::string> calls = std::exchange(ide_->calls.names, {});
    if (calls.size() < n) break;
    const bool hasBegun = std::count(calls.begin(), calls.end(), "CommandBars") > 0;
    const std::size_t made = sourceCount();
    const bool isFallback = made == 5 && toolkit_.boxes.empty();  // the bar by its number served
    if (isFallback) {
      EXPECT_TRUE(calls[n - 1] == "CommandBars" || calls[n - 1] == "Item");
      expectConnected();
    } else {
      ASSERT_EQ(toolkit_.boxes.size(), 1u) << n << " " << calls[n - 1];
      const bool isItem = hasBegun && made < 5;
      EXPECT_EQ(toolkit_.boxes[0].text, isItem ? kItems[made].failure : calls[n - 1] + " fails");
    }
    disconnect();
    EXPECT_FALSE(itemCount() > 0 || isWindowHooked()) << "left by failing " << calls[n - 1];
  }
  expectConnected();
  EXPECT_TRUE(toolkit_.boxes.empty());
  EXPECT_TRUE(addIn_->session.settings.templatePath.ends_with("own.tmkt"));
}

TEST_F(ConnectionTest, DisconnectingGoesOnBehindACallThatFails) {
  openBoth();
  for (std::size_t n = 1;; ++n) {
    connectIn(ConnectMode::startup);
    ide_->kept.clear();
    ide_->calls.failNext(n);
    disconnect();
    if (ide_->calls.names.size() < n) break;
    const std::string failed = ide_->calls.names[n - 1];
    EXPECT_EQ(itemCount(), failed == "Delete" ? 1u : 0u) << n;
    EXPECT_EQ(ide_->kept.count("Settings/DisplayOnConnect"), failed == "set" ? 0u : 1u);
    EXPECT_EQ(addIn_->session.settings.comModules.size(), 0u);
    EXPECT_FALSE(isWindowHooked()) << "whatever stands in the window's procedure still";
    addIn_.reset();
    ide_->send(kColourChange);
    for (const auto& bar : ide_->bars.bars) bar->items.clear();
    makeAddIn();
  }
}

TEST_F(ConnectionTest, ModesDecideWhatIsShownAtOnce) {
  closeOptions();
  connectIn(ConnectMode::external);
  EXPECT_TRUE(itemCount() == 0 && !addIn_->self.ProjectHandler && isWindowHooked());
  disconnect();
  EXPECT_EQ(ide_->kept["Settings/DisplayOnConnect"], "0");
  connectIn(ConnectMode::afterStartup);  // shows nothing
  onOptions([&](User& user, frmAddIn&) {
    disconnect();
    EXPECT_FALSE(user.dialog().isShown());
  });
  ide_->click("Standard", "Tamrikon");
  EXPECT_EQ(ide_->kept["Settings/DisplayOnConnect"], "1");
  closeOptions();
  connectIn(ConnectMode::afterStartup);  // now it does
  disconnect();
  ide_->kept["Settings/DisplayOnConnect"] = "1";
  connectIn(ConnectMode::startup);  // never does
}

TEST_F(ConnectionTest, ShowsWhyTheSettingsOfAProjectAreTheDefaults) {
  const std::string path = folder_.put("One.tamrik", "#Tamrikon Project Settings#\naddSe=1\n");
  openBoth();
  connectIn(ConnectMode::startup);
  ASSERT_EQ(ide_->faults.size(), 1U);
  EXPECT_EQ(ide_->faults.front(), "warning: " + path +
                                        ", line 2: there is no setting 'addSe' (did you mean "
                                        "'addSee'?); the defaults hold");
}

TEST_F(ConnectionTest, ItsOwnerMayLetGoOfItWhileItIsAtWork) {
  openBoth();
  for (const bool compiles : {false, true}) {
    for (const ConnectMode mode : {ConnectMode::startup, ConnectMode::external}) {
      makeAddIn();
      const std::weak_ptr<AddIn> addIn = addIn_;
      const auto letGo = [&] {
        if (addIn_) disconnect();
        addIn_.reset();
      };
      onOptions([&](User& user, frmAddIn& dialog) {
        if (!compiles) return letGo();
        user.click(dialog.Command14);
        toolkit_.onCheckpoint = letGo;
      });
      connectIn(mode);
      if (mode == ConnectMode::startup) ide_->click("Add-Ins", "Tamrikon");
      EXPECT_TRUE(addIn.expired() && itemCount() == 0 && !isWindowHooked());
    }
  }
}

TEST_F(ConnectionTest, FacesFollowTheColourOfButtons) {
  connectIn(ConnectMode::startup);
  ide_->calls.failNext(0);
  ide_->send(kColourChange);
  EXPECT_EQ(ide_->calls.names.size(), 1u) << "the colour of buttons is what it was";
  ide_->buttonFace = 0x202020;
  ide_->send(0x0F);
  ide_->calls.failNext(2);  // the first of three that are pasted
  ide_->send(kColourChange);
  EXPECT_EQ(ide_->calls.names.size(), 4u);
  for (const auto& [bar, bitmap] : {std::pair("Code Window", 102), {"Standard", 101}}) {
    EXPECT_EQ(ide_->bars.find(bar)->items[0]->face.pixels, loadFace(bitmap, 0x202020).pixels);
  }
  EXPECT_EQ(ide_->messages, (std::vector<std::uint32_t>{0x15, 0x0F, 0x15}));
}

TEST(ItemFaces, WhiteAloneTakesTheColourOfButtons) {
  for (int number = 100; number <= 103; ++number) {
    const Face face = loadFace(number, 0x123456);
    ASSERT_TRUE(face.width == 16 && face.height == 16);
    EXPECT_EQ(face.pixels.at(255), 0x00123456u);  // nothing stands in that corner
    EXPECT_EQ(std::count(face.pixels.begin(), face.pixels.end(), 0xFFFFFFFFu), 0);
  }
  // The book is dark at its upper edge and light where its pages are, near the lower one.
  const Face book = loadFace(101, 0);
  EXPECT_EQ(book.pixels.at(1 * 16 + 8), 0xFF22304Fu);
  EXPECT_EQ(book.pixels.at(13 * 16 + 8), 0xFFFFFDF4u);
  EXPECT_THROW(loadFace(99, 0), IdeError);
  EXPECT_THROW(faceOf({}, 0), IdeError);
}

}  // namespace
}  // namespace tamrikon::test
