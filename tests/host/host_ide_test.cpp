#include "host/host_ide.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "support/temp_folder.h"

namespace tamrikon {
namespace {

/// A copy of the project group "Harbour", open.
class HostIdeTest : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::copy(TAMRIKON_TEST_DATA "/host/Harbour", folder_ / "Harbour",
                          std::filesystem::copy_options::recursive);
    std::string why;
    ide_ = HostIde::open(
        nativeFileSystem(), folder_ / "Harbour/Harbour.vbg", nullptr,
        [&](const std::string& warning) { warnings_.push_back(warning); }, why);
    ASSERT_TRUE(ide_) << why;
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
  std::vector<std::string> warnings_;
};

/// Members as "name type scope line", then the procedures of their names as "kind
/// start-body+count".
std::string describe(const CodeModule& module) {
  std::string result = module.Name() + ' ' + std::to_string(module.CountOfDeclarationLines()) +
                       '/' + std::to_string(module.CountOfLines());
  for (int i = 1; i <= module.Members().Count(); ++i) {
    const Member& member = module.Members().Item(i);
    result += "; " + member.Name() + ' ' + std::to_string(static_cast<int>(member.Type())) +
              std::to_string(static_cast<int>(member.Scope())) + ' ' +
              std::to_string(member.CodeLocation());
    for (const ProcKind kind : {ProcKind::procedure, ProcKind::let, ProcKind::set, ProcKind::get}) {
      tryStep([&] {
        const std::string start = std::to_string(module.ProcStartLine(member.Name(), kind));
        result += ", " + std::to_string(static_cast<int>(kind)) + ' ' + start + '-' +
                  std::to_string(module.ProcBodyLine(member.Name(), kind)) + '+' +
                  std::to_string(module.ProcCountLines(member.Name(), kind));
      });
    }
  }
  return result;
}

TEST_F(HostIdeTest, ShowsProjectsAsTheIdeWould) {
  EXPECT_EQ(warnings_, (std::vector<std::string>{
                           "warning: cannot read " + folder_ / "Harbour/Port/modGone.bas",
                           "warning: cannot read " + folder_ / "Harbour/Cranes/Cranes.vbp"}));
  EXPECT_EQ(ide_->VBProjects().Count(), 2);
  EXPECT_EQ(ide_->ActiveVBProject().Name(), "Port");
  EXPECT_EQ(ide_->ActiveVBProject().FileName(), folder_ / "Harbour/Port/Port.vbp");
  EXPECT_EQ(ide_->codePageOf(ide_->VBProjects().Item(1)).number(), 1251);
  EXPECT_EQ(ide_->codePageOf(ide_->VBProjects().Item(2)).number(), 932);

  EXPECT_EQ(describe(module(1, 1)),
            "frmQuay 5/8; Событие 32 4; m_Ship 31 5; cmdGo_Click 11 7, 0 6-7+3");
  EXPECT_EQ(component(1, 2).Type(), ComponentType::mdiForm);
  EXPECT_EQ(describe(module(1, 2)), "mdiPort 0/0");
  EXPECT_EQ(describe(ship()),
            "cShip 22/47; m_Log 31 6; Moored 42 16; m_Length 31 22; m_Tags 31 22; m_Flag 31 22; "
            "Length 23 26, 1 23-26+6, 3 41-42+4; Moor 12 33, 0 29-34+12; Top 11 43, 0 45-46+2");
  EXPECT_EQ(
      describe(module(1, 4)),
      "modShared 3/8; GetTickCount 12 1, 0 1-1+3; cLimit 52 2; cText 52 2; Log 12 4, 0 4-4+5");
  EXPECT_EQ(component(1, 5).CodeModule(), nullptr);
  EXPECT_EQ(describe(module(2, 1)), "mod表 0/2; Pointー 12 1, 0 1-1+2");
  EXPECT_EQ(
      describe(module(2, 2)),
      "modShared 5/8; GetTickCount 12 1, 0 1-1+5; cLimit 52 2; cText 52 2; Mute 12 6, 0 6-6+3");
}

TEST_F(HostIdeTest, ReadsDescriptionsAndIds) {
  EXPECT_EQ(component(1, 3).Description(), "A ship, or what \"floats\".");
  EXPECT_EQ(member("Moored").Description(), "Raised at the quay.");
  EXPECT_EQ(member("Moor").Description(), "Makes her \"fast\".\r\nTwice.");
  EXPECT_EQ(member("Length").Description(), "Length in metres.");
  EXPECT_EQ(member("Length").HelpContextID(), 4711);
  EXPECT_EQ(module(1, 1).Members().Item(2).HelpContextID(), 0);
  EXPECT_EQ(module(2, 1).Members().Item(1).Description(), "ソ[表]");
}

TEST_F(HostIdeTest, FindsProceduresByLine) {
  ProcKind kind = ProcKind::procedure;
  EXPECT_EQ(ship().ProcOfLine(23, kind), "Length");
  EXPECT_EQ(kind, ProcKind::let);
  EXPECT_EQ(ship().ProcOfLine(40, kind), "Moor");
  EXPECT_EQ(ship().ProcOfLine(44, kind), "Length");
  EXPECT_EQ(kind, ProcKind::get);
  EXPECT_EQ(ship().ProcOfLine(47, kind), "Top");
  EXPECT_EQ(ship().ProcBodyLine("LENGTH", ProcKind::get), 42);
  EXPECT_EQ(
      ship().Lines(34, 2),
      "Public Sub Moor(ByVal Name As String, _\r\n                Optional ByVal Sep As String "
      "= \": \")");
  EXPECT_EQ(ship().Lines(47, 9), "' The end.");
  EXPECT_EQ(ship().Lines(1, 0), "");
}

TEST_F(HostIdeTest, ImpossibleCallsFail) {
  ProcKind kind = ProcKind::procedure;
  const std::function<void()> calls[] = {
      [&] { ship().Lines(0, 1); },
      [&] { ship().Lines(48, 1); },
      [&] { ship().Lines(1, -1); },
      [&] { ship().InsertLines(49, "x"); },
      [&] { ship().InsertLines(0, "x"); },
      [&] { ship().DeleteLines(47, 2); },
      [&] { ship().DeleteLines(1, 2147483647); },
      [&] { ship().ProcOfLine(22, kind); },
      [&] { ship().ProcOfLine(48, kind); },
      [&] { ship().ProcBodyLine("Length", ProcKind::set); },
      [&] { ship().ProcStartLine("Mute", ProcKind::procedure); },
      [&] { ship().Members().Item(9); },
      [&] { ide_->VBProjects().Item(3); },
      [&] { component(1, 0); },
      [&] { component(1, 5).setDescription("x"); },
  };
  for (const auto& call : calls) EXPECT_THROW(call(), IdeError) << &call - calls;
  EXPECT_EQ(ship().CountOfLines(), 47);
}

TEST_F(HostIdeTest, MembersKeepTheirIdentityAcrossEdits) {
  Member& top = member("Top");
  Member& moored = member("Moored");
  ship().InsertLines(1, "Public first As Long\r\n");
  EXPECT_EQ(ship().Members().Item(1).Name(), "first");
  EXPECT_EQ(&member("Top"), &top);
  EXPECT_EQ(top.CodeLocation(), 45);
  EXPECT_EQ(&moored.Collection(), &ship().Members());
  EXPECT_EQ(&moored.Collection().Parent(), &ship());
  ship().DeleteLines(18, 1);
  EXPECT_EQ(moored.Name(), "Moored");
  EXPECT_THROW(moored.CodeLocation(), IdeError);
  ship().InsertLines(18, "Public MOORED");
  EXPECT_EQ(&member("MOORED"), &moored);
  EXPECT_EQ(moored.Type(), MemberType::variable);
  EXPECT_EQ(moored.Description(), "");
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
  describe(ship());
  member("Length").setHelpContextID(4711);
  module(2, 1).Members().Item(1).setDescription("ソ[表]");
  EXPECT_TRUE(ide_->saveAll().empty());
  for (int i = 0; i < 5; ++i) EXPECT_FALSE(wasWritten(i)) << names[i];

  module(1, 1).Members().Item(1).setDescription("Имя");
  module(2, 2).InsertLines(9, "' end");
  EXPECT_TRUE(ide_->saveAll().empty());
  for (int i = 0; i < 5; ++i) EXPECT_EQ(wasWritten(i), i == 2 || i == 3) << names[i];
  std::string form = before[2];
  const std::string declaration = "\xD1\xEE\xE1\xFB\xF2\xE8\xE5";  // Событие in code page 1251
  const std::string added =
      "Attribute " + declaration + ".VB_VarDescription = \"\xC8\xEC\xFF\"\r\n";
  form.insert(form.find("Private WithEvents"), added);
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
          ", line 10: code page 1251 lacks U+00E9",
      "cannot save " + folder_ / "Harbour/Port/Port.vbp" + ", line 9: code page 1251 lacks U+3042"};
  EXPECT_EQ(ide_->saveAll(), expected);
  EXPECT_EQ(folder_.get("Harbour/Port/cShip.cls"), ship);
  EXPECT_TRUE(folder_.get("Harbour/Tools/表.bas").find("' \x84\x7E\x84\x80") != std::string::npos);

  this->ship().DeleteLines(3, 1);
  ide_->ActiveVBProject().setHelpFile("a.chm");
  EXPECT_TRUE(ide_->saveAll().empty());
  EXPECT_NE(folder_.get("Harbour/Port/cShip.cls"), ship);

  std::filesystem::remove_all(folder_ / "Harbour/Common");
  module(1, 4).DeleteLines(1, 1);
  EXPECT_EQ(ide_->saveAll(OnConflict::overwrite),
            std::vector<std::string>{"cannot save " + folder_ / "Harbour/Common/modShared.bas" +
                                     ": there is no such folder"});
}

}  // namespace
}  // namespace tamrikon
