#include <gtest/gtest.h>

#include "editor/demo_project.h"
#include "editor/source_code_parser.h"
#include "model/wrappers.h"

namespace tamrikon {
namespace {

using test::User;
using Items = std::vector<std::string>;

class ReferencesTest : public test::DemoProject {
 protected:
  /// Opens the editor on the member that holds `text`, at its references, and cancels it at last.
  void editReferences(const std::string& text,
                      const std::function<void(User&, ReferencesPage&)>& script) {
    edit(text, [&](User& user, EditComment& editor) {
      user.selectTab(editor.tbsOptions, "Group3");
      script(user, editor.referencesPage);
      user.click(editor.cmdCancel);
    });
  }
};

TEST_F(ReferencesTest, ListsFollowTheirButtons) {
  editReferences("Static a", [](User& user, ReferencesPage& page) {
    LinkList& see = page.seeAlso;
    EXPECT_EQ(see.list.selectedText(), "Shelf [the place]");
    EXPECT_EQ(see.link.text() + "|" + see.label.text(), "Shelf|the place");
    user.type(see.link, "  ");
    user.type(see.label, "red");
    user.click(see.add);  // there is no link
    user.type(see.link, ".Clear");
    user.click(see.add);
    EXPECT_EQ(see.list.items(), (Items{"Shelf [the place]", ".Clear [red]"}));
    user.select(see.list, "Shelf [the place]");
    EXPECT_EQ(see.link.text() + "|" + see.label.text(), "Shelf|the place");
    user.click(see.remove);
    EXPECT_EQ(see.list.selectedText(), ".Clear [red]");
    user.click(see.remove);
    EXPECT_FALSE(user.canReach(see.remove) || user.canReach(page.examples.remove));
  });
}

TEST_F(ReferencesTest, ExamplesAreMadeAndOpened) {
  for (const char* name : {"out", "out2"}) std::filesystem::create_directory(folder_ / name);
  editReferences("Static a", [this](User& user, ReferencesPage& page) {
    toolkit_.files = {std::nullopt, folder_ / "out/a.txt", folder_ / "out2/b.txt"};
    for (int i = 0; i < 3; ++i) user.click(page.Command3);
    EXPECT_EQ(toolkit_.fileChoices[0].folder, folder_ / "out");
    EXPECT_EQ(toolkit_.fileChoices[0].fileName, "Store_Add_example.txt");
    EXPECT_EQ(folder_.get("out/a.txt"), "Example for Add.");
    const std::string outside = "\"" + folder_ / "out2/b.txt";
    EXPECT_EQ(page.examples.list.items(), (Items{"\"a.txt", outside}));
    user.select(page.examples.list, "\"a.txt");
    user.click(page.Command2);
    user.select(page.examples.list, outside);
    toolkit_.canOpen = false;
    user.click(page.Command2);
    EXPECT_EQ(toolkit_.opened, (Items{folder_ / "out/a.txt", folder_ / "out2/b.txt"}));
    ASSERT_EQ(toolkit_.boxes.size(), 1u);
    EXPECT_EQ(toolkit_.boxes[0].text, "Cannot show the \"" + folder_ / "out2/b.txt" + "\" file");
  });
}

TEST_F(ReferencesTest, ThePickerServesAllThreeBoxes) {
  editReferences("Static a", [this](User& user, ReferencesPage& page) {
    user.type(page.seeAlso.link, "");
    user.type(page.seeAlso.label, "gone");
    onDialog<ReferenceSelectDlg>([](User& u, ReferenceSelectDlg& picker) {
      EXPECT_EQ(picker.MembersList.count(), 10);
      u.select(picker.MembersList, "Count [PropertyGet]");
      u.click(picker.cmdOK);
    });
    user.click(page.seeAlso.select);
    EXPECT_EQ(page.seeAlso.list.selectedText(), ".Count'get");

    user.type(page.examples.label, "kept");
    onDialog<ReferenceSelectDlg>([this](User& u, ReferenceSelectDlg& picker) {
      EXPECT_FALSE(u.canReach(picker.Option1) || u.canReach(picker.cmdOK));
      toolkit_.files = {folder_ / "out/x.txt", folder_ / "out/sub/x.txt"};
      for (const bool isOutside : {false, true}) {
        u.click(picker.SelectFileBtn);
        EXPECT_EQ(picker.AbsolutePathCheck.isChecked(), isOutside);
      }
      u.click(picker.cmdOK);
    });
    user.click(page.examples.select);
    EXPECT_EQ(page.examples.list.items(), (Items{"\"" + folder_ / "out/sub/x.txt" + " [kept]"}));

    onDialog<ReferenceSelectDlg>([](User& u, ReferenceSelectDlg& picker) {
      EXPECT_FALSE(u.canReach(picker.Option2));
      u.choose(picker.ModuleCombo, "Shelf");
      EXPECT_FALSE(u.canReach(picker.cmdOK));
      u.doubleClick(picker.MembersList, "Go");
    });
    user.click(page.SelectSameBtn);
    EXPECT_EQ(page.SameText.text(), "Shelf.Go");
  });
}

TEST_F(ReferencesTest, ThePickerShowsThePresentLinkAndGivesItBack) {
  KeyedList<CodeModule*> documented;
  for (const char* name : {"Store", "Shelf"}) documented.add(&module(name), name);
  session_.settings.comModules = documented;
  ModuleSource source(module("Store"));
  const WrapperRef member = getWrapperAtLine(source, lineOf("Sub Clear"));
  struct Case {
    const char *link, *module, *entry, *picked;
  };
  for (const Case& c : {
           Case{"", "Store", " [Module itself]", "Store"},
           Case{"shelf.go", "Shelf", "Go", "Shelf.Go"},
           Case{".", "Store", "Clear", ".Clear"},
           Case{".Count'get", "Store", "Count [PropertyGet]", ".Count'get"},
           Case{".Count", "Store", "Count [PropertyLet]", ".Count'let"},
           Case{"IKeep.Keep", "", "", ""},
           Case{"\"x.txt", "", "", "\"x.txt"},
           Case{"\"/a/x.txt", "", "", "\"/a/x.txt"},
       }) {
    SCOPED_TRACE(c.link);
    ReferenceSelectDlg picker(toolkit_, session_, *member, c.link);
    picker.initBoth();
    onDialog<ReferenceSelectDlg>([&](User& user, ReferenceSelectDlg& dialog) {
      const bool isFile = c.link[0] == '"';
      EXPECT_EQ(dialog.Option2.isSelected(), isFile);
      if (!isFile) {
        EXPECT_EQ(dialog.ModuleCombo.text(), c.module);
        EXPECT_EQ(dialog.MembersList.selectedText(), c.entry);
        user.focus(dialog.ModuleCombo);
        user.focus(dialog.MembersList);
      }
      EXPECT_EQ(user.canReach(dialog.cmdOK), *c.picked != '\0');
      if (*c.picked == '\0') return user.clickCloseBox();
      user.click(dialog.cmdOK);
    });
    picker.showModal();
    EXPECT_EQ(picker.link, c.picked);
  }
}

TEST_F(ReferencesTest, ProposesClassesOfTheProject) {
  ModuleSource source(module("Store"));
  const auto proposals = [&](const std::string& at) {
    return findProposals(*getWrapperAtLine(source, lineOf(at)), *ide_);
  };
  EXPECT_EQ(proposals("Implements"),
            (Items{"IKeep [implemented]", "Shelf [implements]", "Shelf [used]", "IKeep [used]"}));
  EXPECT_EQ(proposals("Static a"), (Items{"Shelf [used]", "Store [used]"}));
  for (const char* at : {"Event", "mOne"}) EXPECT_EQ(proposals(at), Items{"Shelf [used]"}) << at;
  for (const char* at : {"Sub Clear", "Property Get"}) EXPECT_EQ(proposals(at), Items{}) << at;

  EXPECT_EQ(SourceCodeParser().getImplements(module("Shelf")), Items{"store\r"});
  EXPECT_EQ(SourceCodeParser::joinContinuedLines("a _|  b _|c|d|e _", "|"),
            (Items{"a   b c", "", "", "d", "e "}));
}

TEST_F(ReferencesTest, ChosenProposalsBecomeLinks) {
  editReferences("Implements", [this](User& user, ReferencesPage& page) {
    const auto find = [&](const std::function<void(User&, InterestLinks&)>& script) {
      onDialog<InterestLinks>(script);
      user.click(page.findInterestBtn);
    };
    user.type(page.seeAlso.link, "Shelfware");  // an item that only begins with a class's name
    user.click(page.seeAlso.add);
    find([](User& u, InterestLinks&) { u.press(Key::escape); });
    EXPECT_EQ(page.seeAlso.list.count(), 1);
    find([](User& u, InterestLinks& proposals) {
      u.check(proposals.List1, "IKeep [implemented]", false);
      u.click(proposals.OKButton);
    });
    EXPECT_EQ(page.seeAlso.list.items(), (Items{"Shelfware", "IKeep"}));
    user.click(page.seeAlso.remove);
    for (int i = 0; i < 2; ++i) find([](User& u, InterestLinks&) { u.press(Key::enter); });
    EXPECT_EQ(page.seeAlso.list.items(), (Items{"Shelfware", "IKeep [IKeep [implemented]]"}));
  });
}

}  // namespace
}  // namespace tamrikon
