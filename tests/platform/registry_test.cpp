#include "platform/registry.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <thread>

#include "platform/registry_text.h"
#include "platform/user_settings.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

constexpr auto kKey = "Software\\Vendor\\Product";

TEST(RegistryText, KeepsWhatItDoesNotKnow) {
  for (const std::string end : {"\n", "\r\n"}) {
    const auto lines = [&end](const std::vector<std::string>& texts) {
      std::string all;
      for (const std::string& text : texts) all += text + end;
      return all;
    };
    const std::string before = lines(
        {"Windows Registry Editor Version 5.00", "; mine", "",
         "[HKEY_LOCAL_MACHINE\\Software\\Vendor\\Product]", "\"Number\"=dword:00000009", "",
         "[hkey_current_user\\SOFTWARE\\vendor\\product] ", "\"text\"=\"old\"", "rubbish",
         "\"Bytes\"=hex:00,\\", "  01", "\"Open\"=\"not closed", "", "[HKEY_CURRENT_USER\\Z]"});
    auto text = RegistryText::parse(before);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->bytes(), before);
    for (const char* name : {"Number", "Bytes", "Open"}) EXPECT_FALSE(text->get(kKey, name));

    text->put({kKey, "Text", "new"});
    text->put({kKey, "Bytes", 10U});
    text->put({kKey, "", "default"});
    text->put({"Software\\Other", "x", "y"});
    EXPECT_EQ(text->bytes(),
              lines({"Windows Registry Editor Version 5.00", "; mine", "",
                     "[HKEY_LOCAL_MACHINE\\Software\\Vendor\\Product]", "\"Number\"=dword:00000009",
                     "", "[hkey_current_user\\SOFTWARE\\vendor\\product] ", "\"Text\"=\"new\"",
                     "rubbish", "\"Bytes\"=dword:0000000a", "\"Open\"=\"not closed",
                     "@=\"default\"", "", "[HKEY_CURRENT_USER\\Z]", "",
                     "[HKEY_CURRENT_USER\\Software\\Other]", "\"x\"=\"y\""}));
    EXPECT_EQ(text->subkeys("software"), (std::vector<std::string>{"vendor", "Other"}));
    text->remove("Software\\Vendor");
    text->remove("Software\\Oth");  // no key, though one begins so
    EXPECT_TRUE(text->get("Software\\Other", "X"));
    text->remove("Software\\Other");
    EXPECT_EQ(text->bytes(), lines({"Windows Registry Editor Version 5.00", "; mine", "",
                                    "[HKEY_LOCAL_MACHINE\\Software\\Vendor\\Product]",
                                    "\"Number\"=dword:00000009", "", "[HKEY_CURRENT_USER\\Z]"}));
  }
}

class RegistryTest : public testing::Test {
 protected:
  RegistryTest() { ::setenv("XDG_CONFIG_HOME", folder_.path().c_str(), 1); }
  ~RegistryTest() override { ::unsetenv("XDG_CONFIG_HOME"); }
  std::string file() const { return folder_.get("tamrikon/registry.txt"); }

  test::TempFolder folder_;
};

TEST_F(RegistryTest, ValuesComeBackAsTheyWere) {
  const std::string texts[] = {"", "C:\\a\\b", "a \"quoted\" = ]", "two\r\nlines\n",
                               "\xC3\xA4 \xFF"};
  for (const std::string& text : texts) {
    ASSERT_EQ(userRegistry().put({{kKey, text, text}, {kKey, "n", 0xFFFFFFFFU}}), FileError::none);
    EXPECT_EQ(userRegistry().text(kKey, text), text);
  }
  EXPECT_EQ(userRegistry().number("software\\vendor\\PRODUCT", "N"), 0xFFFFFFFFU);
  const std::string before = file();
  const std::string nul("a\0b", 3);
  for (const RegistryEntry& bad : {RegistryEntry{kKey, "x", nul}, RegistryEntry{kKey, nul, "x"},
                                   RegistryEntry{"a\nb", "x", "y"}, RegistryEntry{"a\\", "", ""}}) {
    EXPECT_EQ(userRegistry().put({{kKey, "good", "x"}, bad}), FileError::typeMismatch);
  }
  EXPECT_EQ(file(), before);
  EXPECT_EQ(userRegistry().remove({"Software"}), FileError::none);
  EXPECT_EQ(file(), "Windows Registry Editor Version 5.00\n");
}

TEST_F(RegistryTest, SettingsStandWhereProgramsHaveThem) {
  UserSettings& settings = nativeUserSettings();
  EXPECT_EQ(settings.get("Settings", "Key", "0"), "0");
  EXPECT_TRUE(settings.set("Settings", "Key", ""));
  EXPECT_EQ(settings.get("settings", "key", "0"), "");
  EXPECT_NE(file().find("[HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\Tamrikon\\"
                        "Settings]\n\"Key\"=\"\"\n"),
            std::string::npos);
  folder_.put("file", "");
  ::setenv("XDG_CONFIG_HOME", (folder_ / "file").c_str(), 1);
  EXPECT_FALSE(settings.set("Settings", "Key", "1"));
}

TEST_F(RegistryTest, UnusableFileIsKept) {
  for (const std::string text : {"somebody's notes\n", "\xFF\xFEW"}) {
    folder_.put("tamrikon/registry.txt", text);
    EXPECT_EQ(userRegistry().text(kKey, "x"), "");
    EXPECT_EQ(userRegistry().put({{kKey, "x", "y"}}), FileError::none);
    EXPECT_EQ(userRegistry().text(kKey, "x"), "y");
  }
  EXPECT_EQ(folder_.get("tamrikon/registry.txt.bak"), "somebody's notes\n");
  EXPECT_EQ(folder_.get("tamrikon/registry.txt.bak2"), "\xFF\xFEW");

  const std::string unended = folder_.get("tamrikon/registry.txt") + "\"z\"=\"no end\"";
  folder_.put("tamrikon/registry.txt", unended);
  EXPECT_EQ(userRegistry().put({{kKey, "more", "1"}}), FileError::none);
  for (const char* name : {"x", "z", "more"}) EXPECT_NE(userRegistry().text(kKey, name), "");
}

TEST_F(RegistryTest, WritersAtTheSameTimeLoseNothing) {
  constexpr int kWriters = 4;
  constexpr int kValues = 8;
  std::vector<std::thread> writers;
  for (int writer = 0; writer < kWriters; ++writer) {
    writers.emplace_back([writer] {
      for (int value = 0; value < kValues; ++value) {
        const std::string name = std::to_string(writer) + '.' + std::to_string(value);
        EXPECT_EQ(userRegistry().put({{kKey, name, name}}), FileError::none);
      }
    });
  }
  for (std::thread& writer : writers) writer.join();
  for (int n = 0; n < kWriters * kValues; ++n) {
    const std::string name = std::to_string(n / kValues) + '.' + std::to_string(n % kValues);
    EXPECT_EQ(userRegistry().text(kKey, name), name);
  }
}

}  // namespace
}  // namespace tamrikon
