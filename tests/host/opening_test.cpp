#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "base/text.h"
#include "host/host_ide.h"
#include "support/temp_folder.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::TextCase;

/// What an opening gave.
struct Opened {
  std::unique_ptr<HostIde> ide;
  std::string warnings;  // the folder's path as "~", each warning ended by "|"
  std::string why;

  VBProject& project(int number = 1) const { return ide->VBProjects().Item(number); }

  /// Each component of a project as "TYPE NAME", without a name if it has no code.
  std::string components(int number = 1) const {
    std::string result;
    VBComponents& all = project(number).VBComponents();
    for (int i = 1; i <= all.Count(); ++i) {
      if (i > 1) result += ", ";
      result += std::to_string(static_cast<int>(all.Item(i).Type()));
      if (all.Item(i).CodeModule() != nullptr) result += ' ' + all.Item(i).CodeModule()->Name();
    }
    return result;
  }

  int codePage(int number = 1) const { return ide->codePageOf(project(number)).number(); }
};

Opened openIn(const test::TempFolder& folder, const std::string& name, int codePage = 0) {
  Opened opened;
  const auto shorten = [&](const std::string& text) {
    return replaceAll(text, folder.path(), "~");
  };
  opened.ide = HostIde::open(
      nativeFileSystem(), folder / name, CodePage::find(codePage),
      [&](const Diagnostic& fault) { opened.warnings += shorten(lineOf(fault)) + '|'; },
      opened.why);
  opened.why = shorten(opened.why);
  return opened;
}

TEST(Opening, ReadsTheProjectFile) {
  const test::TempFolder folder;
  folder.put("Named.bas", "Attribute VB_Name = \"Real\"\r\n");
  folder.put("Plain.bas", "x\r\n");
  folder.put("My quay.frm", "VERSION 5.00\r\nBegin VB.Form q \r\nEnd\r\n");
  folder.put("mdi.frm", "VERSION 5.00\r\nbegin vb.mdiform m \r\nEnd\r\n");
  for (const char* name : {"c.ctl", "d.dob", "p.pag", "r.dsr", "a.cls", "b.res", "t.txt"}) {
    folder.put(name, "");
  }
  folder.put(
      "p.vbp",
      "Type=Exe\nModule = InLine; Named.bas\nmodule=In/Line;Plain.bas\nModule=Plain.bas\n"
      "Class=A\\B; a.cls\nForm=My quay.frm\nForm=mdi.frm\nPropertyPage=p.pag\n"
      "UserControl=c.ctl\nUserDocument=d.dob\nDesigner=r.dsr\nResFile32=\"b.res\"\n"
      "RelatedDoc=t.txt\nFormat=x\nReference=*\\G{1}\nname=\"a/b c\"\nHelpFile=\"h\\i.chm\"\n"
      "[Other]\nClass=No; no.cls\nName=\"No\"\n");
  const Opened opened = openIn(folder, "p.vbp");
  ASSERT_TRUE(opened.ide) << opened.why;
  EXPECT_EQ(opened.warnings, "");
  EXPECT_EQ(opened.components(),
            "1 Real, 1 In_Line, 1 Plain, 2 A_B, 5 My_quay, 6 mdi, 7 p, 8 c, 9 d, 11 r, 4, 10");
  EXPECT_EQ(opened.project().Name(), "a_b_c");
  EXPECT_EQ(opened.project().HelpFile(), "h\\i.chm");
  EXPECT_EQ(opened.project().FileName(), folder / "p.vbp");
  EXPECT_FALSE(opened.ide->isGroup());
  EXPECT_TRUE(HostIde::isProjectFile("a/p.VBP") && HostIde::isProjectFile("p.b.vbg"));
  EXPECT_FALSE(HostIde::isProjectFile("a.vbp/m") || HostIde::isProjectFile("p.vbpx"));
}

TEST(Opening, FindsFilesAsTheyWereWrittenElsewhere) {
  const test::TempFolder folder;
  folder.put("Api/Codigo/X.CLS", "");
  folder.put("Api/codigo2", "");
  folder.put("api/other.bas", "");
  folder.put("Proj/Both.bas", "Attribute VB_Name = \"Wrong\"\n");
  folder.put("Proj/BOTH.bas", "Attribute VB_Name = \"Right\"\n");
  folder.put("Proj/Moved.frm", "");
  folder.put("Proj/sub/keep", "");
  folder.put("Proj/P.VBP",
             "Type=Exe\nClass=X; ..\\Api\\codigo\\x.cls\nModule=O; ..\\API\\OTHER.BAS\nModule=B; "
             "BOTH.bas\n"
             "Form=J:\\Work\\Ui\\moved.frm\nModule=G; Gone\\..\\..\\Api\\none.bas\nModule=D; sub\n"
             "ResFile32=\"no.res\"\nRelatedDoc=no.doc\nForm=\nForm=\\\\srv\\d$\\no.frm\n"
             "Module=N; ..\\Api\\.\\none.bas\n"
             "Class=Self; P.VBP\n");
  const Opened opened = openIn(folder, "Proj/P.VBP");
  ASSERT_TRUE(opened.ide) << opened.why;
  EXPECT_EQ(opened.components(), "2 X, 1 O, 1 Right, 5 Moved, 1, 1, 4, 10, 5, 5, 1, 2 Self");
  EXPECT_EQ(opened.warnings,
            "warning: cannot read ~/Api/none.bas|warning: cannot read ~/Proj/sub|"
            "warning: cannot read ~/Proj/|warning: cannot read //srv/d$/no.frm|");
}

TEST(Opening, EndsWhereFoldersAreLinksToEachOther) {
  const test::TempFolder folder;
  std::string path;
  for (int n = 0; n < 200; ++n) path += "a\\";
  for (const char* name : {"a", "A"}) std::filesystem::create_symlink(".", folder / name);
  folder.put("P.VBP", "Type=Exe\nModule=M; " + path + "gone.bas\nModule=N; n.bas\n");
  folder.put("N.BAS", "");
  const Opened opened = openIn(folder, "P.VBP");
  ASSERT_TRUE(opened.ide) << opened.why;
  EXPECT_EQ(opened.components(), "1, 1 N");
}

TEST(Opening, GuessesTheCodePage) {
  const auto form = [](const std::string& charsets, const std::string& code) {
    std::string text = "Begin VB.Form f \n";
    for (const std::string_view charset : split(charsets, ' ')) {
      text +=
          "BeginProperty Font\n Charset         =   " + std::string(charset) + "\nEndProperty\n";
    }
    return text + "End\n' " + code + "\nCharset = 128\n";
  };
  using Case =
      std::tuple<const char*, std::vector<std::pair<std::string, std::string>>, std::string, int>;
  const std::string few = "204" + replaceAll(std::string(19, 'x'), "x", " 0");
  const std::vector<Case> cases = {
      {"votes", {{"a.frm", form("0 204", "\xE4\xE4")}}, "Form=a.frm", 1251},
      {"one in twenty", {{"a.frm", form(few, "\xE4\xE4")}}, "Form=a.frm", 1251},
      {"letters that stand alone",
       {{"a.frm", form("204", "\xE4 \xE4 \xE4\xE4 \xE4")}},
       "Form=a.frm",
       1252},
      {"double-byte needs no runs", {{"a.frm", form("128", "\x83")}}, "Form=a.frm", 932},
      {"classes don't vote", {{"a.cls", form("204", "")}}, "Class=a; a.cls", 1252},
      {"votes behind a byte order mark",
       {{"a.frm", "\xEF\xBB\xBF" + form("204", "")}},
       "Form=a.frm",
       1251},
      {"path in UTF-8",
       {{"表.bas", ""}, {"a.frm", form("134", "")}},
       "Form=a.frm\nModule=x; 表.bas",
       936},
  };
  for (const auto& [caseName, files, project, page] : cases) {
    SCOPED_TRACE(caseName);
    const test::TempFolder folder;
    for (const auto& [name, bytes] : files) folder.put(name, bytes);
    folder.put("p.vbp", "Type=Exe\n" + project + "\n");
    const Opened opened = openIn(folder, "p.vbp");
    ASSERT_TRUE(opened.ide) << opened.why;
    EXPECT_EQ(opened.warnings.empty(), std::string(caseName) != "letters that stand alone");
    EXPECT_EQ(opened.codePage(), page);
    EXPECT_EQ(openIn(folder, "p.vbp", 1257).codePage(), 1257);
  }
}

TEST(Opening, GuessesTheCodePageFromBytes) {
  const auto check = [](const TextCase& c) {
    const CodePage& bytes = *CodePage::find(c.number("writtenIn"));
    const test::TempFolder folder;
    folder.put("m.bas", bytes.encode(c["module"]));
    folder.put("p.vbp", bytes.encode("Type=Exe\nModule=m; m.bas\nName=\"" + c["project"] + "\"\n"));
    const Opened opened = openIn(folder, "p.vbp");
    ASSERT_TRUE(opened.ide) << opened.why;
    EXPECT_EQ(opened.codePage(), c.has("guessed") ? c.number("guessed") : 1252);
    const std::string note = c.has("guessed")
                                 ? "note: the code page of " + opened.project().Name() +
                                       " is guessed to be " + c["guessed"]
                                 : "note: nothing tells the code page of ";
    EXPECT_TRUE(opened.warnings.starts_with(note)) << opened.warnings;
    EXPECT_EQ(openIn(folder, "p.vbp", c.number("writtenIn")).warnings, "");
  };
  test::forEachCase("host/guessed-code-pages.txt", {"project", "module", "writtenIn", "guessed"},
                    check);
}

TEST(Opening, ReadsGroups) {
  const test::TempFolder folder;
  folder.put("A/a.vbp", "Type=Exe\nName=\"A\"\nModule=S; ..\\s.bas\n");
  folder.put("B/b.vbp", "Type=Exe\nName=\"B\"\nForm=f.frm\nModule=S; ..\\S.BAS\n");
  folder.put("B/f.frm", "Begin VB.Form f\nCharset = 128\nEnd\n' \x83\x5C\n");
  folder.put("s.bas", "x\n");
  folder.put("g.vbg",
             "VBGROUP 5.0\nProject=a\\A.vbp\nProject=none.vbp\nStartupProject=B\\b.vbp\n"
             "Project=B\\b.vbp\n");
  Opened opened = openIn(folder, "g.vbg");
  ASSERT_TRUE(opened.ide) << opened.why;
  EXPECT_TRUE(opened.ide->isGroup());
  EXPECT_EQ(opened.warnings, "warning: cannot read ~/none.vbp|");
  ASSERT_EQ(opened.ide->VBProjects().Count(), 2);
  EXPECT_EQ(&opened.ide->ActiveVBProject(), &opened.project(2));
  EXPECT_EQ(opened.codePage(2), 932);

  CodeModule* ofA = opened.project(1).VBComponents().Item(1).CodeModule();
  CodeModule* ofB = opened.project(2).VBComponents().Item(2).CodeModule();
  ASSERT_NE(ofA, ofB);
  ofA->InsertLines(1, "Public y");
  EXPECT_EQ(ofB->Lines(1, 2), "Public y\r\nx");
  EXPECT_EQ(ofB->Members().Count(), 1);
}

TEST(Opening, SurvivesAnyBytes) {
  std::string junk;
  for (unsigned i = 0; i < 200000; ++i) junk += static_cast<char>(i * i / 7 + i);
  const auto many = [](const char* text) {
    return replaceAll(std::string(100000, 'x'), "x", text);
  };
  const std::string longLine(1000000, 'x');
  const test::TempFolder folder;
  const std::string junkProject =
      "Type=Exe\nModule=a; a.bas\nModule=n; " + std::string("a\0b.bas", 7) +
      "\nForm=" + replaceAll(longLine, "xx", "a\\") +
      "\nForm=" + replaceAll(longLine, "xxxxx", "a\\..\\") + "a.bas\nName=" + junk;
  for (const std::string& text :
       {std::string(), junk, longLine, replaceAll("Public [x\nPublic (x", "x", longLine),
        many("Begin\n"), many("#If 1 Then\n"), many("a _\n"), many("[:\r") + "Public a"}) {
    SCOPED_TRACE(text.substr(0, 20));
    folder.put("a.bas", text);
    folder.put("p.vbp", junkProject);
    const Opened opened = openIn(folder, "p.vbp");
    ASSERT_TRUE(opened.ide) << opened.why;
    CodeModule* module = opened.project().VBComponents().Item(1).CodeModule();
    ASSERT_NE(module, nullptr);
    if (module->Members().Count() > 0) module->Members().Item(1).setHelpContextID(1);
    module->InsertLines(module->CountOfLines() + 1, "' end");
    const bool isRefused = text == junk || text.starts_with("Begin");
    EXPECT_EQ(opened.ide->saveAll().size(), isRefused ? 1U : 0U);
    openIn(folder, "a.bas");
  }
}

TEST(Opening, SavesTheHelpFileAlone) {
  test::forEachCase("host/help-files.txt", {"before", "helpFile", "after"}, [](const TextCase& c) {
    const test::TempFolder folder;
    folder.put("p.vbp", c["before"]);
    const Opened opened = openIn(folder, "p.vbp");
    ASSERT_TRUE(opened.ide) << opened.why;
    opened.project().setHelpFile(c["helpFile"]);
    EXPECT_EQ(opened.project().HelpFile(), c["helpFile"]);
    EXPECT_EQ(opened.ide->saveAll().size(), 0U);
    EXPECT_EQ(folder.get("p.vbp"), c["after"]);
  });
}

}  // namespace
}  // namespace tamrikon
