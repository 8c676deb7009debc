// The command `comment --missing` on whole projects: those of the examples, those that other tests
// use, and one of everything that could come out wrong.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>

#include "cli/patching.h"
#include "support/program_run.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

namespace fs = std::filesystem;
using test::ProgramRun;

std::map<std::string, std::string> filesIn(const test::TempFolder& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
    const std::string name = fs::relative(entry.path(), folder.path());
    if (entry.is_regular_file()) files[name] = folder.get(name);
  }
  return files;
}

/// The topics that a compile of everything in the project writes.
std::set<std::string> topicsOf(const std::string& project) {
  const test::TempFolder output;
  output.put("t.tmkt", "$MEMBER-EXT$ .m\n");
  const ProgramRun run({"compile", project, "--template", output / "t.tmkt", "--output",
                        output / "pages", "--no-exec", "--set", "comNonCommented=1"});
  EXPECT_EQ(run.status, 0) << run.err;
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(output / "pages")) {
    names.insert(entry.path().filename());
  }
  return names;
}

/// Runs the command twice on a project, with and without --dry-run. The result is what it printed.
std::string commentAll(const test::TempFolder& folder, const std::string& project) {
  const ProgramRun chosen({"settings", project, "comPrivate=1", "comFriend=1", "comStdModule=1",
                           "comVariable=1", "comConstant=1", "comContextID=1", "addSame=1"});
  const auto before = filesIn(folder);
  const auto topics = topicsOf(project);
  const fs::path home = fs::current_path();
  fs::current_path(folder.path());
  const ProgramRun dry({"comment", project, "--missing", "--dry-run"});
  fs::current_path(home);
  EXPECT_EQ(filesIn(folder), before);
  const ProgramRun run({"comment", project, "--missing"});
  EXPECT_EQ(run.status, 0) << run.err;
  const auto after = filesIn(folder);
  for (const auto& [name, text] : before) {
    const std::size_t start = std::min(dry.out.find("--- " + name + "\n"), dry.out.size());
    const std::string rest = dry.out.substr(start) + "--- ";
    const std::string diff = rest.substr(0, rest.find("\n--- ") + 1);
    EXPECT_EQ(test::patched(text, diff), after.at(name)) << name;
    EXPECT_EQ(diff.find("\n-"), std::string::npos) << "only insertions: " << diff;
  }
  EXPECT_EQ(topicsOf(project), topics) << "every member is still found";
  EXPECT_EQ(ProgramRun({"comment", project, "--missing"}).out, "No comment is missing.\n");
  EXPECT_EQ(filesIn(folder), after) << "the second time";
  return run.out;
}

TEST(MissingComments, FindTheirPlacesInAllProjectsAtHand) {
  int projects = 0;
  for (const std::string root : {TAMRIKON_TEST_DATA, TAMRIKON_TEST_DATA "/../../examples"}) {
    const test::TempFolder folder;
    fs::copy(root, folder.path(), fs::copy_options::recursive);
    for (const auto& [name, text] : filesIn(folder)) {
      if (!name.ends_with(".vbp")) continue;
      SCOPED_TRACE(name);
      commentAll(folder, folder / name);
      ++projects;
    }
  }
  EXPECT_GE(projects, 8);
}

TEST(MissingComments, AreInsertedOnceWhateverTheSourceLooksLike) {
  const test::TempFolder folder;
  folder.put("Twice.bas", "Public Sub A()\nEnd Sub\n");  // named by two modules
  folder.put("Bare.cls", "Attribute VB_Name = \"Bare\"\n");
  folder.put(
      "Mixed.bas",
      "#If Win32 Then\nPublic Const A = 1, _\r\n  B = 2\r#Else\r\nPublic Const C = 3\r\n#End If\r\n"
      "Public X As Long: Public Y As Long\n\n\n' a plain comment _\n'\nSub S(): End Sub: _\r\n"
      "Property Get P() As Long\nAttribute P.VB_Description = \"A\\r\\nB _\"\nEnd Property");
  folder.put("Utf8.cls",
             "\xEF\xBB\xBF"
             "Attribute VB_Name = \"Utf8\"\n' é\nPublic Größe As Long\nPublic Event Voll(ByVal "
             "Größe As Größe)\n"
             "\tPublic List(5) As String\n");
  folder.put(
      "Props.cls",
      "Option Explicit\r\nProperty Get A(): End Property\r\nProperty Let A(v): End Property\r\n"
      "'**\r\n' Known.\r\nProperty Get B(): End Property\r\nProperty Set B(v): End Property");
  const std::string project =
      folder.put("All.vbp",
                 "Type=Exe\nModule=One; Twice.bas\nModule=Two; Twice.bas\nClass=Bare; Bare.cls\n"
                 "Module=Mixed; Mixed.bas\nClass=Utf8; Utf8.cls\nClass=Props; Props.cls\n");
  EXPECT_EQ(commentAll(folder, project),
            "One\nOne.A\nBare\nMixed\nMixed.A\nMixed.X\nMixed.S\nUtf8\nUtf8.Größe\nUtf8.Voll\n"
            "Utf8.List\nProps\nProps.A\n13 comments inserted in 5 modules.\n");
  EXPECT_NE(folder.get("Props.cls").find("'@param        v Variant.\r\n'@see"), std::string::npos)
      << "the skeleton of a property stands where its topic comes from";
}

TEST(MissingComments, AreThoseThatTheSettingsWantInTheModulesThatAreGiven) {
  const test::TempFolder folder;
  const std::string source =
      "Public Sub A()\nAttribute A.VB_Description = \"5 $\"\nEnd Sub\nPrivate Sub B()\nEnd Sub\n"
      "Const C = 1\n";
  for (const char* name : {"One.cls", "Two.cls", "Three.cls"}) folder.put(name, source);
  const std::string project = folder.put(
      "All.vbp", "Type=Exe\nClass=One; One.cls\nClass=Two; Two.cls\nClass=Three; Three.cls\n");
  folder.put("All.tamrik",
             "#Tamrikon Project Settings#\ncomNonCommented = 0\ncomObject = 0\n"
             "addDescription = 1\ncomModules = One\ncomModules = Two\n");
  const ProgramRun run({"comment", project, "--missing", "TWO", "Three"});
  EXPECT_EQ(run.out, "Two.A\n1 comment inserted in 1 module.\n");
  EXPECT_EQ(run.err, "warning: the settings don't select module Three to be documented\n");
  EXPECT_EQ(folder.get("Two.cls"), "'**\n'5 $$\n'@see\n'@rem\n" + source);
}

}  // namespace
}  // namespace tamrikon
