// Add-ins from the host's side: how they are found, loaded on start-up and managed by the user.
#include "addin_host/add_ins.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "addin/user_folder.h"
#include "addin_host/add_in_manager_dlg.h"
#include "addin_host/own_component.h"
#include "com/component.h"
#include "com/registry_keys.h"
#include "platform/dynamic_library.h"
#include "platform/user_settings.h"
#include "support/scripted_ide.h"
#include "support/scripted_toolkit.h"

namespace tamrikon {
namespace {

using test::User;

class AddInsTest : public testing::Test {
 protected:
  void SetUp() override { EXPECT_EQ(registerOwnComponent(userRegistry()), std::nullopt); }

  void registerBroken(const std::string& progId, const std::string& library) {
    const CLSID clsid = {1, 2, 3, {}};
    ASSERT_EQ(
        userRegistry().put({{addInKey(progId), kLoadBehaviorName, std::uint32_t{kLoadsOnStartup}},
                            {progIdKey(progId) + "\\CLSID", "", textOf(clsid)},
                            {classKey(clsid) + "\\InprocServer32", "", library}}),
        FileError::none);
  }

  /// Runs the manager once.
  void manage(const std::function<void(User&, AddInManagerDlg&)>& script) {
    toolkit_.onDialog("AddInManager", [script](User& user) {
      script(user, dynamic_cast<AddInManagerDlg&>(user.dialog()));
    });
  }
  static bool isLibraryLoaded() {
    void* library = ::dlopen(ownComponent().c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (library != nullptr) ::dlclose(library);
    return library != nullptr;
  }
  std::size_t items() const { return ide_.bars.find("Code Window")->items.size(); }
  std::uint32_t behavior() const {
    return userRegistry().number(addInKey(kConnectProgId), kLoadBehaviorName).value_or(99);
  }

  test::UserFolder user_;
  test::ScriptedToolkit toolkit_;
  test::ScriptedIde ide_{toolkit_, {"Menu Bar", "Standard", "Add-Ins", "Code Window"}};
  AddIns addIns_{ide_, userRegistry()};
  AddInManagerDlg manager_{toolkit_, addIns_};
};

TEST_F(AddInsTest, ManagerLoadsUnloadsAndRemembers) {
  EXPECT_TRUE(addIns_.connectOnStartup().empty());
  EXPECT_EQ(items(), 3U);
  manage([](User& user, AddInManagerDlg& dialog) {
    EXPECT_EQ(dialog.AvailableList.items(),
              std::vector<std::string>{"Tamrikon (Startup / Loaded)"});
    EXPECT_EQ(dialog.DescriptionText.text(), "VB documentation generator.");
    user.check(dialog.LoadedCheck, false);
    EXPECT_EQ(dialog.AvailableList.selectedText(), "Tamrikon (Startup / Unloaded)");
    user.press(Key::escape);
  });
  manager_.run();
  EXPECT_EQ(items(), 3U) << "it was cancelled";
  EXPECT_EQ(behavior(), 3U);

  manage([](User& user, AddInManagerDlg& dialog) {
    EXPECT_TRUE(dialog.LoadedCheck.isChecked());
    user.check(dialog.LoadedCheck, false);
    user.check(dialog.StartupCheck, false);
    user.click(dialog.cmdOK);
  });
  manager_.run();
  EXPECT_EQ(items(), 0U);
  EXPECT_FALSE(isLibraryLoaded());
  EXPECT_EQ(behavior(), 0U);
  EXPECT_TRUE(addIns_.connectOnStartup().empty());
  EXPECT_EQ(items(), 0U);

  // The add-in was up with its options when it was last disconnected.
  ASSERT_TRUE(nativeUserSettings().set("Settings", "DisplayOnConnect", "1"));
  manage([](User& user, AddInManagerDlg& dialog) {
    user.doubleClick(dialog.AvailableList, "Tamrikon (Unloaded)");
    EXPECT_TRUE(dialog.LoadedCheck.isChecked());
    user.click(dialog.cmdOK);
  });
  toolkit_.onDialog("frmAddIn", [](User& user) { user.press(Key::escape); });
  manager_.run();
  EXPECT_EQ(items(), 3U);
  EXPECT_EQ(behavior(), 1U);
  addIns_.disconnect("tamrikon.connect", vbext_dm_UserClosed);
  EXPECT_EQ(nativeUserSettings().get("Settings", "DisplayOnConnect", ""), "0");
}

TEST_F(AddInsTest, ConnectionFromOutsideShowsTheOptionsAtOnce) {
  toolkit_.onDialog("frmAddIn", [this](User& user) {
    EXPECT_EQ(items(), 0U);
    user.press(Key::escape);
  });
  EXPECT_EQ(addIns_.connect(kConnectProgId, vbext_cm_External), std::nullopt);
  EXPECT_TRUE(addIns_.connectOnStartup().empty());
  EXPECT_EQ(items(), 0U) << "it isn't connected twice";
}

TEST_F(AddInsTest, MayBeDisconnectedWhileItsOptionsAreUp) {
  toolkit_.onDialog("frmAddIn", [this](User&) {
    addIns_.disconnect(kConnectProgId, vbext_dm_UserClosed);
    EXPECT_EQ(nativeUserSettings().get("Settings", "DisplayOnConnect", ""), "1");
    EXPECT_FALSE(addIns_.isConnected(kConnectProgId));
    EXPECT_TRUE(isLibraryLoaded()) << "its code is running";
  });
  EXPECT_EQ(addIns_.connect(kConnectProgId, vbext_cm_External), std::nullopt);
  EXPECT_TRUE(addIns_.connectOnStartup().empty());
  addIns_.disconnect(kConnectProgId, vbext_dm_UserClosed);
  EXPECT_FALSE(isLibraryLoaded());
}

TEST_F(AddInsTest, WhatCannotBeLoadedIsNamed) {
  const std::string text = user_.folder().put("text.so", "no library");
  const std::string other = libraryOf(reinterpret_cast<const void*>(&::getenv));
  const struct {
    std::string library;
    std::string reason;
  } cases[] = {{"/no/such.so", "/no/such.so: there is no such file"},
               {text, text + ": file too short"},
               {other, other + ": it is a library, but not one of add-ins"},
               {ownComponent(), ownComponent() + ": it was made for another program, or another "
                                                 "version of this one"},
               {"", "It is not registered with a library."}};
  for (const auto& entry : cases) {
    registerBroken("Other.AddIn", entry.library);
    const std::vector<std::string> failures = addIns_.connectOnStartup();
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_EQ(failures[0], "The add-in Other.AddIn cannot be loaded. " + entry.reason);
    EXPECT_EQ(items(), 3U) << "the others are loaded";
  }
  manage([](User& user, AddInManagerDlg& dialog) {
    user.select(dialog.AvailableList, "Other.AddIn (Startup / Unloaded)");
    user.check(dialog.LoadedCheck, true);
    user.click(dialog.cmdOK);
  });
  manage([](User& user, AddInManagerDlg& dialog) {
    EXPECT_EQ(dialog.AvailableList.items()[1], "Other.AddIn (Startup / Unloaded)");
    user.click(dialog.cmdOK);
  });
  manager_.run();
  ASSERT_EQ(toolkit_.boxes.size(), 1U);
  EXPECT_NE(toolkit_.boxes[0].text.find("Other.AddIn"), std::string::npos);
}

TEST_F(AddInsTest, OwnComponentIsRegisteredOnceAndFoundAgain) {
  ASSERT_EQ(setLoadBehavior(userRegistry(), kConnectProgId, false, false), FileError::none);
  const std::string unticked = user_.registry();
  EXPECT_EQ(registerOwnComponent(userRegistry()), std::nullopt);
  EXPECT_EQ(user_.registry(), unticked);
  const std::string library = classKey(CLSID_Connect) + "\\InprocServer32";
  ASSERT_EQ(userRegistry().put({{library, "", "/moved/away.so"}}), FileError::none);
  EXPECT_EQ(registerOwnComponent(userRegistry()), std::nullopt);
  EXPECT_EQ(user_.registry(), unticked) << "found again, and not loaded still";
}

}  // namespace
}  // namespace tamrikon
