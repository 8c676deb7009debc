#include "host/host_ide.h"

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

/// A copy of the project group "Harbour", open.
class HostIdeTest : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::copy(TAMRIKON_TEST_DATA "/host/Harbour", folder_ / "Harbour",
                          std::filesystem::copy_options::recursive);
    ide_ = test::openProject(folder_ / "Harbour/Harbour.vbg");
  }

  VBComponent& component(int project, int number) const {
    return ide_->VBProjects().Item(project).VBComponents().Item(number);
  }
  CodeModule& module(int project, int number) const {
    return *component(project, number).CodeModule();
  }
  CodeModule& ship() const { return module(1, 3); }
  Member& member(const std::string& name) const {
    for (int i = 1; i <= ship().Members().Count(); ++i) {
      if (ship().Members().Item(i).Name() == name) return ship().Members().Item(i);
    }
    throw IdeError("no member " + name);
  }

  test::TempFolder folder_;
  std::unique_ptr<HostIde> ide_;
};

TEST_F(HostIdeTest, ShowsProjectsAsTheIdeWould) {
  EXPECT_EQ(ide_->ActiveVBProject().Name(), "Port");
  EXPECT_EQ(ide_->codePageOf(ide_->VBProjects().Item(1)).number(), 1251);
  EXPECT_EQ(ide_->codePageOf(ide_->VBProjects().Item(2)).number(), 932);
  EXPECT_EQ(component(1, 2).Type(), ComponentType::mdiForm);
  EXPECT_EQ(component(1, 5).CodeModule(), nullptr);
  EXPECT_EQ(module(2, 1).Name(), "mod表");
  // Their constants decide which of its last two members a module has that both share.
  const auto shared = [&](int project, int number) {
    std::string found;
    for (int i = 1; i <= module(project, number).Members().Count(); ++i) {
      const Member& member = module(project, number).Members().Item(i);
      found += member.Name() + ' ' + std::to_string(member.CodeLocation()) + ' ';
    }
    return found;
  };
  EXPECT_EQ(shared(1, 4), "GetTickCount 1 cLimit 2 cText 2 Log 4 ");
  EXPECT_EQ(shared(2, 2), "GetTickCount 1 cLimit 2 cText 2 Mute 6 ");
}

TEST_F(HostIdeTest, FindsLinesAndProcedures) {
  ProcKind kind = ProcKind::procedure;
  EXPECT_EQ(ship().ProcOfLine(23, kind), "Length");
  EXPECT_EQ(kind, ProcKind::let);
  EXPECT_EQ(ship().ProcOfLine(40, kind), "Moor");
  EXPECT_EQ(ship().ProcOfLine(47, kind), "Top");
  EXPECT_EQ(ship().ProcBodyLine("LENGTH", ProcKind::get), 42);
  EXPECT_EQ(ship().Lines(46, 9), "Private Function Top&(): Top = 1: End Function\r\n' The end.");
}

TEST_F(HostIdeTest, ImpossibleCallsFail) {
  ProcKind kind = ProcKind::procedure;
  const std::function<void()> calls[] = {
      [&] { ship().Lines(0, 1); },
      [&] { ship().Lines(48, 1); },
      [&] { ship().InsertLines(49, "x"); },
      [&] { ship().DeleteLines(47, 2); },
      [&] { ship().ProcOfLine(48, kind); },
      [&] { ship().ProcStartLine("Mute", ProcKind::procedure); },
      [&] { ship().Members().Item(9); },
      [&] { component(1, 0); },
      [&] { component(1, 5).setDescription("x"); },
  };
  for (const auto& call : calls) EXPECT_THROW(call(), IdeError) << &call - calls;
}

TEST_F(HostIdeTest, MembersKeepTheirIdentityAcrossEdits) {
  Member& top = member("Top");
  Member& moored = member("Moored");
  ship().InsertLines(1, "Public first As Long\r\n");
  EXPECT_EQ(ship().Members().Item(1).Name(), "first");
  EXPECT_EQ(&member("Top"), &top);
  EXPECT_EQ(top.CodeLocation(), 45);
  ship().DeleteLines(18, 1);
  EXPECT_EQ(moored.Name(), "Moored");
  EXPECT_THROW(moored.CodeLocation(), IdeError);
  ship().InsertLines(18, "Public MOORED");
  EXPECT_EQ(&member("MOORED"), &moored);
}

TEST_F(HostIdeTest, SavesOnlyWhatChanged) {
  const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  const std::string names[] = {"Port/Port.vbp", "Port/cShip.cls", "Port/Ui/frmQuay.frm",
                               "Common/modShared.bas", "Tools/表.bas"};
  std::vector<std::string> before;
  for (const std::string& name : names) {
    before.push_back(folder_.get("Harbour/" + name));
    std::filesystem::last_write_time(folder_ / ("Harbour/" + name), old);
  }
  const auto wasWritten = [&](int i) {
    return std::filesystem::last_write_time(folder_ / ("Harbour/" + names[i])) != old;
  };
  member("Length").setHelpContextID(4711);
  module(2, 1).Members().Item(1).setDescription("ソ[表]");
  EXPECT_TRUE(ide_->saveAll().empty());
  for (int i = 0; i < 5; ++i) EXPECT_FALSE(wasWritten(i)) << names[i];

  module(1, 1).Members().Item(1).setDescription("Имя");
  module(2, 2).InsertLines(9, "' end");
  EXPECT_TRUE(ide_->saveAll().empty());
  for (int i = 0; i < 5; ++i) EXPECT_EQ(wasWritten(i), i == 2 || i == 3) << names[i];
  std::string form = before[2];
  form.insert(form.find("Private WithEvents"),  // Событие and Имя in code page 1251
              "Attribute \xD1\xEE\xE1\xFB\xF2\xE8\xE5.VB_VarDescription = \"\xC8\xEC\xFF\"\r\n");
  EXPECT_EQ(folder_.get("Harbour/Port/Ui/frmQuay.frm"), form);
  EXPECT_EQ(folder_.get("Harbour/Common/modShared.bas"), before[3] + "\n' end\n");
}

TEST_F(HostIdeTest, FailedSavesLeaveTheirFilesAndNoOthers) {
  const std::string ship = folder_.get("Harbour/Port/cShip.cls");
  this->ship().InsertLines(2, "' fine\n' caf\u00E9");
  member("Top").setHelpContextID(7);
  module(2, 1).InsertLines(1, "' новый");
  ide_->ActiveVBProject().setHelpFile("\u3042.chm");
  const std::vector<std::string> expected = {
      "cannot save " + folder_ / "Harbour/Port/cShip.cls" +
          ", line 3, column 6: code page 1251 lacks 'é' (U+00E9)",
      "cannot save " + folder_ / "Harbour/Port/Port.vbp" +
          ", line 9, column 11: code page 1251 lacks 'あ' (U+3042)"};
  const std::vector<SaveFailure> failures = ide_->saveAll();
  EXPECT_EQ(test::texts(failures), expected);
  EXPECT_EQ(failures.front().path, folder_ / "Harbour/Port/cShip.cls");
  EXPECT_EQ(std::pair(failures.front().line, failures.front().column), std::pair(3, 6));
  EXPECT_EQ(folder_.get("Harbour/Port/cShip.cls"), ship);
  EXPECT_TRUE(folder_.get("Harbour/Tools/表.bas").find("' \x84\x7E\x84\x80") != std::string::npos);

  this->ship().DeleteLines(3, 1);
  ide_->ActiveVBProject().setHelpFile("a.chm");
  EXPECT_TRUE(ide_->saveAll().empty());
  EXPECT_NE(folder_.get("Harbour/Port/cShip.cls"), ship);
}

}  // namespace
}  // namespace tamrikon
