// The command `comment --missing` on whole projects: those of the examples and those of the tests.
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

}  // namespace
}  // namespace tamrikon
