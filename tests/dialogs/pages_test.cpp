#include <filesystem>

#include "dialogs/options_fixture.h"
#include "dialogs/text_input.h"
#include "toolkit/frm_browse_dlg.h"

namespace tamrikon {
namespace {

using test::User;
using Names = std::vector<std::string>;

class UserTagsTest : public test::OptionsFixture {
 protected:
  /// The user tags as they are on disk: 1 or 0, name and default text of each.
  std::string savedTags() {
    std::string tags;
    for (const std::string number : {"1", "2", "3", "4", "5"}) {
      tags += saved("addUser" + number) + saved("user" + number + "Name") + ":";
      tags += saved("user" + number + "Default") + " ";
    }
    return tags;
  }

  CommentPage& page_ = dialog_.commentPage;
};

TEST_F(UserTagsTest, NameIsPutRightWhenItsBoxIsLeft) {
  for (const auto& [text, name] : {std::pair{"todo2", "todo2"},
                                   {"  Todo ", "Todo"},
                                   {"my-tag", "user3"},
                                   {" ", "user3"},
                                   {"gr\xC3\xB6n", "user3"}}) {
    EXPECT_EQ(frmAddIn::validateTagName(text, 3), name) << text;
  }
  show("Group2", [&](User& user) {
    user.type(page_.userTags[0].name, "my-tag");
    user.type(page_.userTags[4].name, " five ");
    EXPECT_EQ(page_.userTags[0].name.text(), "user1");
    user.press(Key::enter);
  });
  EXPECT_EQ(savedTags(), "0user1: 0user2: 0user3: 0user4: 0five: ");
}

TEST_F(UserTagsTest, DefaultTextIsEditedInADialogOfItsOwn) {
  session_.settings.userDefault[3] = "old = text";
  const auto edit = [&](User& user, Key end) {
    toolkit_.onDialog("TextInput", [end](User& writer) {
      auto& input = dynamic_cast<TextInput&>(writer.dialog());
      writer.type(input.Text1, "new");
      writer.press(end);
    });
    user.click(page_.userTags[3].defaultText);
  };
  show("Group2", [&](User& user) {
    edit(user, Key::escape);
    user.click(dialog_.cmdApply);
    EXPECT_EQ(saved("user4Default"), "old = text");
    edit(user, Key::enter);
    EXPECT_EQ(session_.settings.userDefault[3], "old = text") << "until Apply";
    user.click(dialog_.cmdOK);
  });
  EXPECT_EQ(saved("user4Default"), "new");
}

TEST_F(UserTagsTest, ImportTakesTheUserTagsAndNothingElse) {
  const std::string header = "#Tamrikon Project Settings#\r\n";
  const char* unchanged = "1mine:kept 0user2: 0user3: 0user4: 0user5: ";
  for (const auto& [text, tags] :
       {std::pair{header + "addSee = 0\r\naddUser1 = 0\r\naddUser5=1\r\nuser2Name = todo\r\n"
                           "  user3Name =\r\nuser2Default = a = b \r\n\r\nno sign\r\n"
                           "future = 1\r\nuser6Name = six\r\nUser4Name = no\r\nuser4Default=x",
                  "0mine:kept 0todo:a = b 0user3: 0user4:x 1user5: "},
        {"#Settings#\r\nuser2Name = todo", unchanged},
        {" " + header + "user2Name = todo", unchanged}}) {
    session_.settingsFile.setDefaultSettings(*ide_);
    session_.settings.addUser[0] = true;
    session_.settings.userDefault[0] = "kept";
    toolkit_.files = {folder_.put("other.tamrik", text)};
    show("Group2", [&](User& user) {
      user.type(page_.userTags[0].name, "mine");
      user.click(page_.Command10);
      user.click(dialog_.cmdOK);
    });
    EXPECT_EQ(savedTags(), tags) << text;
    EXPECT_EQ(saved("addSee"), "1");
  }
  EXPECT_TRUE(toolkit_.boxes.empty());
}

TEST_F(UserTagsTest, FileThatFailsIsReadAgainUntilTheUserGivesUp) {
  for (const std::string& file : {folder_ / "gone.tamrik", folder_.put("empty.tamrik", "")}) {
    toolkit_.boxes.clear();
    toolkit_.files = {file, std::nullopt};
    toolkit_.answers = {MessageAnswer::retry, MessageAnswer::retry, MessageAnswer::cancel};
    show("Group2", [&](User& user) {
      user.click(page_.Command10);
      user.click(page_.Command10);
      EXPECT_EQ(page_.userTags[1].name.text(), "user2");
      user.press(Key::escape);
    });
    ASSERT_EQ(toolkit_.boxes.size(), 3U);
    EXPECT_EQ(toolkit_.boxes.back().title, "Error reading " + file + " file");
  }
}

class OutputPageTest : public test::OptionsFixture {
 protected:
  /// The next folder chooser starts at `start` and gives `chosen`, or nothing if that is empty.
  void browse(const std::string& prompt, const std::string& start, const std::string& chosen) {
    toolkit_.onDialog("frmBrowseDlg", [=](User& user) {
      auto& chooser = dynamic_cast<frmBrowseDlg&>(user.dialog());
      EXPECT_EQ(chooser.lblPrompt1.caption(), prompt);
      EXPECT_EQ(chooser.FolderTreeview1.selected(), start);
      if (!chosen.empty()) user.select(chooser.FolderTreeview1, chosen);
      user.press(chosen.empty() ? Key::escape : Key::enter);
    });
  }

  OutputPage& page_ = dialog_.outputPage;
};

TEST_F(OutputPageTest, AnotherTemplateIsTakenByAClick) {
  const std::string own = folder_ / "own";
  folder_.put("own/b.tmkt", "$tamrik-description$\n$OUTPUT-PATH$\nb\n$end-tamrik-description$\n");
  folder_.put("own/A.TMKT", "");
  folder_.put("own/notes.txt", "");
  show("Group3", [&](User& user) {
    EXPECT_EQ(page_.File1.selectedText(), "chm.tmkt");
    user.focus(page_.Text9);  // and leave it
    user.focus(page_.Text8);
    EXPECT_EQ(page_.File1.selectedText(), "chm.tmkt");
    EXPECT_EQ(page_.Text1.text(), "first line");
    user.type(page_.Text9, own + "/");
    user.focus(page_.File1);
    EXPECT_EQ(page_.Text1.text(), "");
    EXPECT_EQ(page_.File1.items(), (Names{"A.TMKT", "b.tmkt"}));
    user.doubleClick(page_.File1, "b.tmkt");
    EXPECT_EQ(page_.Text1.text(), folder_ / "Tamrik b");
    user.click(dialog_.cmdOK);
  });
  EXPECT_EQ(session_.settings.templatePath, own + "/b.tmkt");
  EXPECT_EQ(saved("templateFolder"), own);
  EXPECT_EQ(saved("templatePath"), "b.tmkt");
}

TEST_F(OutputPageTest, TemplateThatIsGoneIsToldAndTheDialogWorksOn) {
  const std::string path = session_.settings.templatePath;
  std::filesystem::remove_all(folder_ / "data");
  show("Group3", [&](User& user) {
    EXPECT_EQ(page_.Text1.text(), "Cannot read descriptionfrom " + path + "file.");
    EXPECT_EQ(page_.File1.count(), 0);
    user.click(dialog_.cmdOK);
  });
  EXPECT_EQ(saved("templatePath"), "chm.tmkt");
  EXPECT_TRUE(toolkit_.boxes.empty());
}

TEST_F(OutputPageTest, OutputFolderThatIsTypedIsMadeFromTheProjectOn) {
  folder_.put("file", "");
  for (const auto& [typed, taken] : {std::pair{"docs/api", "docs/api"}, {"", "Tamrik"}}) {
    show("Group3", [&, typed = typed](User& user) {
      user.type(page_.Text8, typed);
      user.click(dialog_.cmdApply);
      user.click(dialog_.cmdCancel);
    });
    EXPECT_EQ(saved("outputPath"), folder_ / taken);
    EXPECT_TRUE(std::filesystem::is_directory(folder_ / taken));
  }
  EXPECT_TRUE(toolkit_.boxes.empty());
  show("Group3", [&](User& user) {
    user.type(page_.Text8, "file/x");
    user.click(dialog_.Command1);
  });
  ASSERT_EQ(toolkit_.boxes.size(), 1U);
  EXPECT_EQ(toolkit_.boxes[0].text, "The output folder can't be created:\r\n" + folder_ / "file/x");
}

TEST_F(OutputPageTest, FoldersAreChosenInATree) {
  std::filesystem::create_directories(folder_ / "out");
  folder_.put("more/own.tmkt", "");
  show("Group3", [&](User& user) {
    // The default output folder isn't there: the tree begins at the one above it.
    browse("Specify the output folder", folder_.path(), folder_ / "out");
    user.click(page_.Command12);
    EXPECT_EQ(page_.Text8.text(), folder_ / "out");
    browse("Specify the output folder", folder_ / "out", "");  // cancelled
    user.click(page_.Command12);
    browse("Specify the templates folder", folder_ / "data/Templates", folder_ / "more");
    user.click(page_.Command13);
    EXPECT_EQ(page_.Text9.text(), folder_ / "more");
    EXPECT_EQ(page_.File1.items(), Names{"own.tmkt"});
    user.click(dialog_.cmdOK);
  });
  EXPECT_EQ(saved("outputPath"), folder_ / "out");
  EXPECT_EQ(saved("templateFolder"), folder_ / "more");
}

}  // namespace
}  // namespace tamrikon
