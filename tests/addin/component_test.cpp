// The component from outside: as any host finds it that knows the rules and nothing else.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <memory>

#include "addin/user_folder.h"
#include "addin_host/host_application.h"
#include "addin_host/own_component.h"
#include "com/add_in_interfaces.h"
#include "com/com_ptr.h"
#include "com/component.h"
#include "com/guid_text.h"
#include "com/registry_keys.h"
#include "platform/dynamic_library.h"
#include "support/scripted_ide.h"
#include "support/scripted_toolkit.h"

namespace tamrikon {
namespace {

using test::UserFolder;

constexpr GUID kUnknownGuid = {0x12345678, 1, 2, {3, 4, 5, 6, 7, 8, 9, 10}};

TEST(Component, ShowsTheWorldFourFunctions) {
  const std::string command = TAMRIKON_NM " -D --defined-only --format=posix " + ownComponent();
  const std::unique_ptr<FILE, int (*)(FILE*)> names(::popen(command.c_str(), "r"), ::pclose);
  std::string all;
  char line[1000];
  while (std::fgets(line, sizeof line, names.get()) != nullptr) {
    const std::string text(line);
    all += text.substr(0, text.find(' ')) + ' ';
  }
  EXPECT_EQ(all, "DllCanUnloadNow DllGetClassObject DllRegisterServer DllUnregisterServer ");
}

TEST(Guid, TextsAreReadAsTheyAreWritten) {
  EXPECT_EQ(textOf(IID_IClassFactory), "{00000001-0000-0000-C000-000000000046}");
  EXPECT_EQ(guidOf(textOf(CLSID_Connect)), CLSID_Connect);
  EXPECT_EQ(guidOf("{6e4f1b82-97d5-4c3a-b0e8-2c19a7f350d4}"), CLSID_Connect);
  for (const char* bad : {"", "{6e4f1b82-97d5-4c3a-b0e8-2c19a7f350d4", "6e4f1b82",
                          "{6e4f1b8g-97d5-4c3a-b0e8-2c19a7f350d4}"}) {
    EXPECT_FALSE(guidOf(bad)) << bad;
  }
}

class ComponentTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string why;
    library_ = DynamicLibrary::load(ownComponent(), why);
    ASSERT_TRUE(library_) << why;
    getClassObject_ = library_->function<HRESULT(REFCLSID, REFIID, void**)>("DllGetClassObject");
  }

  /// Nothing that a test held may keep the library.
  void TearDown() override {
    application_->forgetHost();
    application_.reset();
    EXPECT_EQ(canUnload(), S_OK);
    library_.reset();
    EXPECT_EQ(::dlopen(ownComponent().c_str(), RTLD_NOW | RTLD_NOLOAD), nullptr);
  }

  HRESULT call(const char* name) const { return library_->function<HRESULT()>(name)(); }
  HRESULT canUnload() const { return call("DllCanUnloadNow"); }

  ComPtr<IClassFactory> factory() const {
    ComPtr<IClassFactory> made;
    EXPECT_EQ(getClassObject_(CLSID_Connect, IID_IClassFactory, made.put()), S_OK);
    return made;
  }
  ComPtr<IAddIn> addIn() const {
    ComPtr<IAddIn> made;
    EXPECT_EQ(factory()->CreateInstance(nullptr, IID_IAddIn, made.put()), S_OK);
    return made;
  }

  UserFolder user_;
  test::ScriptedToolkit toolkit_;
  test::ScriptedIde ide_{toolkit_, {"Menu Bar", "Standard", "Add-Ins", "Code Window"}};
  ComPtr<HostApplication> application_{new HostApplication(ide_)};
  std::unique_ptr<DynamicLibrary> library_;
  HRESULT (*getClassObject_)(REFCLSID, REFIID, void**) = nullptr;
};

TEST_F(ComponentTest, RefusesWhatItDoesNotHave) {
  void* object = this;
  EXPECT_EQ(getClassObject_(kUnknownGuid, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(object, nullptr);
  object = this;
  EXPECT_EQ(getClassObject_(CLSID_Connect, kUnknownGuid, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(getClassObject_(CLSID_Connect, IID_IClassFactory, nullptr), E_POINTER);

  const ComPtr<IClassFactory> factory = this->factory();
  const ComPtr<IAddIn> addIn = this->addIn();
  object = this;
  EXPECT_EQ(factory->CreateInstance(addIn.get(), IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(object, nullptr);
  object = this;
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IClassFactory, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
  for (IUnknown* known :
       {static_cast<IUnknown*>(factory.get()), static_cast<IUnknown*>(addIn.get())}) {
    EXPECT_EQ(known->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(known->QueryInterface(kUnknownGuid, &object), E_NOINTERFACE);
    EXPECT_EQ(known->AddRef(), 2U);
    EXPECT_EQ(known->Release(), 1U);
    ComPtr<IUnknown> same;
    EXPECT_EQ(known->QueryInterface(IID_IUnknown, same.put()), S_OK);
    EXPECT_EQ(same.get(), known);
  }
  EXPECT_EQ(addIn->OnConnection(nullptr, vbext_cm_Startup, nullptr, nullptr), E_POINTER);
  EXPECT_EQ(addIn->OnConnection(factory.get(), vbext_cm_Startup, nullptr, nullptr), E_NOINTERFACE);
  EXPECT_EQ(
      addIn->OnConnection(application_.get(), static_cast<vbext_ConnectMode>(3), nullptr, nullptr),
      E_INVALIDARG);
  EXPECT_EQ(addIn->OnDisconnection(vbext_dm_UserClosed, nullptr), E_UNEXPECTED);
}

TEST_F(ComponentTest, SaysWhetherItIsInUse) {
  EXPECT_EQ(canUnload(), S_OK);
  ComPtr<IClassFactory> factory = this->factory();
  EXPECT_EQ(canUnload(), S_FALSE);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  factory.reset();
  EXPECT_EQ(canUnload(), S_FALSE) << "it is locked";
  EXPECT_EQ(this->factory()->LockServer(FALSE), S_OK);
  EXPECT_EQ(canUnload(), S_FALSE);
  EXPECT_EQ(this->factory()->LockServer(FALSE), S_OK);
  EXPECT_EQ(this->factory()->LockServer(FALSE), E_UNEXPECTED);
  EXPECT_EQ(canUnload(), S_OK);
  ComPtr<IAddIn> addIn = this->addIn();
  EXPECT_EQ(canUnload(), S_FALSE);
}

TEST_F(ComponentTest, ConnectsAgainAndAgain) {
  for (int n = 0; n < 100; ++n) {
    ComPtr<IAddIn> addIn = this->addIn();
    ASSERT_EQ(addIn->OnConnection(application_.get(), vbext_cm_Startup, nullptr, nullptr), S_OK);
    EXPECT_EQ(addIn->OnConnection(application_.get(), vbext_cm_Startup, nullptr, nullptr),
              E_UNEXPECTED);
    EXPECT_EQ(ide_.events.clicks.size(), 5U);
    EXPECT_EQ(ide_.bars.find("Code Window")->items.size(), 3U);
    ide_.send(static_cast<std::uint32_t>(WindowMessage::sysColorChange));
    // Every other time the host just lets go of it.
    if (n % 2 == 0) {
      EXPECT_EQ(addIn->OnDisconnection(vbext_dm_UserClosed, nullptr), S_OK);
      EXPECT_EQ(addIn->OnDisconnection(vbext_dm_UserClosed, nullptr), E_UNEXPECTED);
    }
    addIn.reset();
    ASSERT_EQ(canUnload(), S_OK);
    EXPECT_TRUE(ide_.events.clicks.empty());
    for (const auto& bar : ide_.bars.bars) EXPECT_TRUE(bar->items.empty()) << bar->name;
  }
  ide_.send(1);
  EXPECT_EQ(ide_.messages.size(), 101U) << "the window has its own procedure again";
  EXPECT_TRUE(toolkit_.boxes.empty());
}

TEST_F(ComponentTest, FailuresOfTheHostLeaveNothingBehind) {
  const WindowProcedure own = ide_.procedure;
  for (const bool whileConnecting : {true, false}) {
    std::size_t failing = 0;
    do {
      SCOPED_TRACE(++failing);
      toolkit_.boxes.clear();
      ComPtr<IAddIn> addIn = this->addIn();
      ide_.calls.failNext(whileConnecting ? failing : 0);
      EXPECT_EQ(addIn->OnConnection(application_.get(), vbext_cm_Startup, nullptr, nullptr), S_OK);
      const std::size_t calls = ide_.calls.names.size();
      ide_.calls.failNext(whileConnecting ? 0 : failing);
      EXPECT_EQ(addIn->OnDisconnection(vbext_dm_UserClosed, nullptr), S_OK);
      if (whileConnecting) ide_.calls.names.resize(calls);
      addIn.reset();
      EXPECT_LE(toolkit_.boxes.size(), whileConnecting ? 1U : 0U);
      EXPECT_TRUE(ide_.events.clicks.empty());
      std::size_t left = 0;  // an item that can't be deleted stays
      for (const auto& bar : ide_.bars.bars) left += std::exchange(bar->items, {}).size();
      EXPECT_LE(left, 1U);
      ide_.send(1);
      EXPECT_EQ(ide_.messages.back(), 1U);
      // A window procedure that can't be taken out is called on, and needs its library.
      const bool isOut = ide_.procedure.target_type() == own.target_type();
      EXPECT_EQ(canUnload(), isOut ? S_OK : S_FALSE);
      ide_.procedure = own;
      EXPECT_EQ(canUnload(), S_OK);
    } while (failing <= ide_.calls.names.size());
    EXPECT_GT(failing, 6U);
  }
}

TEST_F(ComponentTest, RegistersItselfAndNothingElse) {
  const std::string before =
      "Windows Registry Editor Version 5.00\n\n"
      "[HKEY_CURRENT_USER\\Software\\Classes\\Tamrikon.Connection]\n@=\"another one\"\n";
  user_.putRegistry(before);
  ASSERT_EQ(call("DllRegisterServer"), S_OK);
  const Registry& registry = userRegistry();
  const std::string addIn = "Software\\Microsoft\\Visual Basic\\6.0\\Addins\\Tamrikon.Connect";
  const std::string clsid = registry.text("Software\\Classes\\Tamrikon.Connect\\CLSID", "");
  EXPECT_EQ(registry.text(addIn, "FriendlyName"), "Tamrikon");
  EXPECT_EQ(registry.text(addIn, "Description"), "VB documentation generator.");
  EXPECT_EQ(registry.number(addIn, "LoadBehavior"), 3U);
  EXPECT_EQ(registry.number(addIn, "CommandLineSafe"), 0U);
  EXPECT_EQ(registry.text("Software\\Classes\\CLSID\\" + clsid + "\\InprocServer32", ""),
            ownComponent());
  EXPECT_EQ(guidOf(clsid), CLSID_Connect);

  ASSERT_EQ(userRegistry().put({{addIn, "LoadBehavior", 0U}}), FileError::none);
  ASSERT_EQ(call("DllRegisterServer"), S_OK);
  EXPECT_EQ(registry.number(addIn, "LoadBehavior"), 0U) << "the user's choice";
  ASSERT_EQ(call("DllUnregisterServer"), S_OK);
  EXPECT_EQ(user_.registry(), before);
  ASSERT_EQ(call("DllUnregisterServer"), S_OK) << "what is gone is gone";

  ::setenv("XDG_CONFIG_HOME", ownComponent().c_str(), 1);  // no folder
  EXPECT_EQ(call("DllRegisterServer"), SELFREG_E_CLASS);
}

}  // namespace
}  // namespace tamrikon
