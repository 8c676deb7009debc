// Files that several modules, and other programs, share.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "host/source_text.h"
#include "support/open_project.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

/// Two projects over one module, each with another file of its own, open.
class SharedFilesTest : public testing::Test {
 protected:
  void SetUp() override {
    folder_.put("g.vbg", "VBGROUP 5.0\nProject=a.vbp\nProject=b.vbp\n");
    folder_.put("a.vbp", "Type=Exe\nModule=m; m.bas\nForm=f.frm\n");
    folder_.put("b.vbp", "Type=Exe\nModule=m; m.bas\nHelpFile=h\n");
    folder_.put("m.bas", kModule);
    folder_.put("f.frm", "VERSION 5.00\nBegin VB.Form f\nEnd\nAttribute VB_Name = \"f\"\nx\n");
    ide_ = test::openProject(folder_ / "g.vbg");
  }

  HostModule& module(int project = 1, int number = 1) const {
    return *ide_->VBProjects().Item(project).VBComponents().Item(number).CodeModule();
  }
  std::string lines(int project = 1, int number = 1) const {
    return module(project, number).Lines(1, module(project, number).CountOfLines());
  }
  std::string conflict(const std::string& name, const std::string& what = "changed") const {
    return folder_ / name + " has been " + what + " by another program since it was read";
  }

  static constexpr const char* kModule =
      "Attribute VB_Name = \"m\"\nSub A()\nAttribute A.VB_Description = \"old\"\nEnd Sub\n";
  test::TempFolder folder_;
  std::unique_ptr<HostIde> ide_;
};

/// Writes down what it is told.
struct Recorder final : SourceObserver {
  void linesChanged(int first, int removed, int inserted) override {
    told += std::to_string(first) + '-' + std::to_string(removed) + '+' + std::to_string(inserted);
    told += ' ';
    onLines();
  }
  void savedStateChanged() override { told += "state "; }
  std::string take() { return std::exchange(told, {}); }

  std::string told;
  std::function<void()> onLines = [] {};
};

TEST_F(SharedFilesTest, ObserversOfBothModulesHearUntilTheyStop) {
  Recorder first;
  Recorder second;
  module(1).observe(first);
  module(2).observe(second);
  module(1).observe(first);
  module(2).replaceLines(1, 2, "Sub A()\n' x\nEnd Sub");
  EXPECT_FALSE(ide_->save(module(1)));
  EXPECT_EQ(first.take(), "2-0+1 state state ");
  EXPECT_EQ(second.take(), "2-0+1 state state ");
  second.take();

  first.onLines = [&] {
    module(1).stopObserving(first);
    module(1).stopObserving(second);
    module(1).observe(second);
  };
  module(1).InsertLines(1, "a\nb");
  module(1).InsertLines(1, "c");
  EXPECT_EQ(first.take(), "1-0+2 ");
  EXPECT_EQ(second.take(), "state 1-0+1 ");
  module(1).stopObserving(second);
}

TEST_F(SharedFilesTest, SavesOneAtATime) {
  module(2).replaceLines(1, 1, "Sub A(x)");
  module(1, 2).DeleteLines(1, 1);
  ide_->VBProjects().Item(1).setHelpFile("i");
  EXPECT_TRUE(ide_->VBProjects().Item(1).isChanged());
  EXPECT_FALSE(ide_->save(module(1)));
  EXPECT_FALSE(ide_->saveProject(ide_->VBProjects().Item(1)));
  EXPECT_EQ(folder_.get("a.vbp"), "Type=Exe\nModule=m; m.bas\nForm=f.frm\nHelpFile=\"i\"\n");
  EXPECT_FALSE(module(2).isChanged());
  EXPECT_TRUE(ide_->hasUnsavedChanges());
  EXPECT_TRUE(module(1, 2).undo());
  EXPECT_FALSE(ide_->hasUnsavedChanges());
}

TEST_F(SharedFilesTest, NeverSavesOverTheWorkOfOthersUnasked) {
  HostProject& project = ide_->VBProjects().Item(2);
  EXPECT_FALSE(ide_->changedOnDisk(module()));
  folder_.put("m.bas", "other\n");
  folder_.put("b.vbp", "Type=Exe\nModule=m; m.bas\nHelpFile=k\n");
  std::filesystem::remove(folder_ / "f.frm");
  EXPECT_TRUE(ide_->changedOnDisk(module()) && ide_->changedOnDisk(project));
  EXPECT_TRUE(ide_->isGone(module(1, 2)));
  EXPECT_FALSE(ide_->isGone(module()) || ide_->isGone(project));
  EXPECT_TRUE(ide_->saveAll().empty()) << "nothing was edited";

  module().InsertLines(1, "' mine");
  project.setHelpFile("mine");
  module(1, 2).InsertLines(1, "' mine");
  EXPECT_EQ(test::texts(ide_->saveAll()),
            (std::vector<std::string>{conflict("m.bas"), conflict("f.frm", "removed"),
                                      conflict("b.vbp")}));
  EXPECT_EQ(ide_->saveProject(project)->text, conflict("b.vbp"));
  EXPECT_EQ(folder_.get("m.bas"), "other\n");
  EXPECT_EQ(folder_.get("b.vbp"), "Type=Exe\nModule=m; m.bas\nHelpFile=k\n");
  EXPECT_TRUE(!folder_.has("f.frm") && module().isChanged());

  EXPECT_FALSE(ide_->save(module(), OnConflict::overwrite));
  EXPECT_EQ(lines(), "' mine\r\nSub A()\r\nEnd Sub");
  EXPECT_FALSE(ide_->changedOnDisk(module()));
  EXPECT_TRUE(ide_->saveAll(OnConflict::overwrite).empty());
  EXPECT_EQ(folder_.get("b.vbp"), "Type=Exe\nModule=m; m.bas\nHelpFile=\"mine\"\n");
  EXPECT_TRUE(folder_.has("f.frm"));
}

TEST_F(SharedFilesTest, OnlyASaveOfOneFilePutsBackWhatWasNotEdited) {
  HostProject& project = ide_->VBProjects().Item(2);
  const std::string old = folder_.get("b.vbp");
  folder_.put("m.bas", "other\n");
  folder_.put("b.vbp", "Type=Exe\n");
  EXPECT_TRUE(ide_->saveAll(OnConflict::overwrite).empty());
  EXPECT_FALSE(ide_->save(module()));
  EXPECT_EQ(folder_.get("m.bas"), "other\n");
  EXPECT_FALSE(ide_->save(module(), OnConflict::overwrite));
  EXPECT_FALSE(ide_->saveProject(project, OnConflict::overwrite));
  EXPECT_EQ(folder_.get("m.bas"), kModule);
  EXPECT_EQ(folder_.get("b.vbp"), old);
}

TEST_F(SharedFilesTest, ReloadsInPlace) {
  HostModule& shared = module(2);
  Member& member = shared.Members().Item(1);
  EXPECT_EQ(member.Description(), "old");
  shared.InsertLines(1, "' mine");
  Recorder recorder;
  shared.observe(recorder);
  folder_.put("m.bas",
              "Attribute VB_Name = \"n\"\r\n\r\nSub A()\r\n"
              "Attribute A.VB_Description = \"\xE4\"\r\nEnd Sub\r\n");
  EXPECT_FALSE(ide_->reload(module(1)));
  EXPECT_EQ(recorder.take(), "1-1+1 state ");
  EXPECT_EQ(member.Description(), "\u00E4");
  EXPECT_EQ(member.CodeLocation(), 2);
  EXPECT_FALSE(shared.undo() || shared.isChanged() || ide_->changedOnDisk(shared));
  member.setHelpContextID(7);
  EXPECT_FALSE(ide_->save(shared));
  EXPECT_EQ(folder_.get("m.bas"),
            "Attribute VB_Name = \"n\"\r\n\r\nSub A()\r\nAttribute A.VB_HelpID = 7\r\n"
            "Attribute A.VB_Description = \"\xE4\"\r\nEnd Sub\r\n");
  shared.stopObserving(recorder);

  HostComponent& form = ide_->VBProjects().Item(1).VBComponents().Item(2);
  folder_.put("f.frm", "VERSION 5.00\nBegin VB.MDIForm f\nEnd\nx\n");
  EXPECT_FALSE(ide_->reload(*form.CodeModule()));
  EXPECT_EQ(form.Type(), ComponentType::mdiForm);
}

TEST_F(SharedFilesTest, AFailedReloadChangesNothing) {
  module().InsertLines(1, "' mine");
  std::filesystem::remove(folder_ / "m.bas");
  EXPECT_EQ(ide_->reload(module()), "cannot read " + folder_ / "m.bas" + ": there is no such file");
  EXPECT_EQ(lines(), "' mine\r\nSub A()\r\nEnd Sub");
  EXPECT_TRUE(module().canUndo() && module().isChanged());
}

TEST_F(SharedFilesTest, PeopleEditWithinTheModuleAlone) {
  HostModule& shared = module();
  EXPECT_THROW(shared.replaceLines(0, 1, "x"), IdeError);
  EXPECT_THROW(shared.replaceLines(4, 0, "x"), IdeError);
  EXPECT_FALSE(shared.canUndo());
  shared.replaceLines(3, 0, "x");
  {
    const EditGroup group(module(2));
    shared.replaceLines(1, 1, "Sub B()");
    module(2).DeleteLines(3, 1);
  }
  EXPECT_EQ(lines(), "Sub B()\r\nEnd Sub");
  shared.undo();
  EXPECT_EQ(lines(), "Sub A()\r\nEnd Sub\r\nx");
}

}  // namespace
}  // namespace tamrikon
