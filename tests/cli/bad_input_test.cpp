// Whatever lies on the disk: a message that names the file, an exit status, and no harm.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/program_run.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::ProgramRun;

std::string junk() {
  std::string bytes;
  for (int n = 0; n < 4096; ++n) bytes += static_cast<char>((n * 7919) >> 3);
  return bytes;
}

class BadInputTest : public testing::Test {
 protected:
  ProgramRun compile(const std::string& project) {
    return ProgramRun(
        {"compile", project, "--template", template_, "--output", folder_ / "out", "--no-exec"});
  }

  test::TempFolder folder_;
  std::string template_ = folder_.put(
      "t.tmkt", "$MEMBER-EXT$ .txt\n$PROJECT-EXT$ .p\n$CONTENTS-EXT$ .c\n$INDEX-EXT$ .i\n");
};

TEST_F(BadInputTest, ReadsAnythingAsAProjectOrSource) {
  for (const std::string& text : {std::string(), junk(), std::string(3'000'000, 'x'),
                                  std::string("Begin VB.Form\n") + std::string(60'000, '\n')}) {
    folder_.put("a.bas", text);
    folder_.put("c.tamrik", text);
    EXPECT_EQ(compile(folder_.put("a.vbp", "Module=a; a.bas\nForm=a.bas\nClass=b; a.vbp\n")).status,
              0);
    EXPECT_EQ(compile(folder_.put("b.vbp", text)).status, 0);
    EXPECT_EQ(compile(folder_.put("c.vbp", "Module=a; a.bas\n")).status, 0);
  }
}

TEST_F(BadInputTest, NamesWhatItCannotRead) {
  folder_.put("folder.bas/x", "");
  const ProgramRun run =
      compile(folder_.put("a.vbp", "Module=A; gone\\a.bas\nModule=B; folder.bas\n"));
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "warning: cannot read " + (folder_ / "gone/a.bas") + "\n" +
                         "warning: cannot read " + (folder_ / "folder.bas") + "\n");
  EXPECT_EQ(compile(folder_.put("g.vbg", "VBGROUP 5.0\nProject=gone.vbp\n")).status, 1);
}

TEST_F(BadInputTest, KeepsPagesInsideTheOutputFolder) {
  folder_.put("a.bas",
              "Attribute VB_Name = \"../../up\"\nSub A()\nEnd Sub\nSub [../b]()\nEnd Sub\n");
  const std::string project = folder_.put("a.vbp", "Name=\"../../../etc/x\"\nModule=a; a.bas\n");
  EXPECT_EQ(compile(project).status, 0);
  EXPECT_TRUE(folder_.has("out/______up-A.txt"));
  for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
    EXPECT_NE(entry.path().extension(), ".p") << entry.path();
  }
}

TEST_F(BadInputTest, LivesThroughAnyTemplate) {
  folder_.put("a.bas", "Sub A()\nEnd Sub\n");
  const std::string project = folder_.put("a.vbp", "Module=a; a.bas\n");
  for (const std::string& text : {std::string(), junk(), std::string(2'000'000, '$'),
                                  std::string("$tamrik-index-body$\n$DOLIST$ $INDEX-LINK-LIST$")}) {
    folder_.put("t.tmkt", text);
    EXPECT_LE(compile(project).status, 1);
  }
  folder_.put("d.tmkt/x", "");
  template_ = folder_ / "d.tmkt";
  const ProgramRun run = compile(project);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err.rfind("Error reading " + template_ + " file: ", 0), 0U);
}

TEST_F(BadInputTest, ReportsAFullDisk) {
  folder_.put("a.bas", "Sub A()\nEnd Sub\n");
  const std::string project = folder_.put("a.vbp", "Name=\"A\"\nModule=a; a.bas\n");
  folder_.put("out/x", "");
  std::filesystem::create_symlink("/dev/full", folder_ / "out/A.p");
  folder_.put("t.tmkt", "$PROJECT-EXT$ .p\n$tamrik-project-body$\nx\n$end-tamrik-project-body$");
  const ProgramRun run = compile(project);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(
      run.err.rfind("Error saving " + (folder_ / "out/A.p") + " file: Disk is full. Continue?", 0),
      0U);
}

}  // namespace
}  // namespace tamrikon
