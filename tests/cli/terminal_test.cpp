// What somebody at a terminal sees, is asked and can stop.
#include <gtest/gtest.h>
#include <signal.h>

#include <filesystem>

#include "cli/questions.h"
#include "platform/interrupt.h"
#include "support/program_run.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::ProgramRun;

class TerminalTest : public testing::Test {
 protected:
  TerminalTest() {
    for (const char* name : {"One", "Two"}) {
      const std::string text(name);
      folder_.put("C" + text + ".cls", "'**\n'Fills.\nPublic Sub Fill()\nEnd Sub\n");
      folder_.put(text + ".vbp",
                  "Type=Exe\nName=\"" + text + "\"\nClass=C" + text + "; C" + text + ".cls\n");
    }
    folder_.put("t.tmkt",
                "$MEMBER-EXT$ .m\n$PROJECT-EXT$ .p\n$tamrik-help-file$\n"
                "$OUTPUT-PATH$/One.p\n$end-tamrik-help-file$\n");
  }

  std::vector<std::string> compile(const std::string& project) const {
    return {"compile",  folder_ / project, "--template", folder_ / "t.tmkt",
            "--output", folder_ / "out",   "--no-exec"};
  }

  test::TempFolder folder_;
};

TEST_F(TerminalTest, AsksUntilAnAnswerIsOneAndActsOnIt) {
  const std::string page = folder_ / "out/One.p";
  std::filesystem::create_directories(page);  // a folder stands in the way of the page
  const std::string box = "Error saving " + page + " file: Unrecognized file error.\n";
  const std::string ask = "[R]etry, [C]ancel? ";
  const auto answer = [&](std::istringstream input) {
    return ProgramRun(compile("One.vbp"), [&](Streams& streams) {
      streams.readLine = [&]() -> std::optional<std::string> {
        std::string line;
        return std::getline(input, line) ? std::optional(line) : std::nullopt;
      };
    });
  };
  const ProgramRun asked = answer(std::istringstream("what\nr\n CANCEL \n"));
  EXPECT_EQ(asked.status, 1);
  EXPECT_EQ(asked.err, box + ask + ask + box + ask + "tamrikon: the compile of One was stopped\n");
  EXPECT_EQ(answer(std::istringstream("")).err,
            box + ask + "\ntamrikon: the compile of One was stopped\n");
}

TEST_F(TerminalTest, InterruptStopsTheProjectInWorkAndNoOther) {
  int pumps = 0;
  folder_.put("Both.vbg", "VBGROUP 5.0\nStartupProject=One.vbp\nProject=Two.vbp\n");
  const ProgramRun group(compile("Both.vbg"), [&](Streams& streams) {
    streams.isInterrupted = [&] { return ++pumps == 2; };
  });
  EXPECT_EQ(group.out.find("Project: One\nProject: Two\nWrote "), 0U)
      << "each message is printed once";
  EXPECT_TRUE(folder_.has("out/Two.p"));
  EXPECT_FALSE(folder_.has("out/One.p"));
}

TEST_F(TerminalTest, InterruptWaitsForProgramsAndASecondOneEndsThem) {
  folder_.put("Both.vbg", "VBGROUP 5.0\nStartupProject=One.vbp\nProject=Two.vbp\n");
  folder_.put("t.tmkt",
              "$PROJECT-EXT$ .p\n$tamrik-exec-after$\ncd $OUTPUT-PATH$; echo begun > begun; "
              "sleep .5; echo done > $PROJECT-NAME$.done\n$end-tamrik-exec-after$\n");
  std::vector<std::string> arguments = compile("Both.vbg");
  arguments.pop_back();
  for (const int presses : {1, 2}) {
    std::filesystem::remove_all(folder_ / "out");
    int left = presses;
    const ProgramRun group(arguments, [&](Streams& streams) {
      streams.isInterrupted = [&] { return folder_.has("out/begun") && left-- > 0; };
    });
    EXPECT_EQ(group.status, 1);
    EXPECT_EQ(
        group.err,
        "tamrikon: waiting for the template's programs to end; Ctrl+C ends them and tamrikon\n"
        "tamrikon: the compile of One was stopped\n");
    EXPECT_EQ(folder_.has("out/One.done"), presses == 1);
    EXPECT_EQ(folder_.has("out/Two.done"), presses == 1);
    EXPECT_FALSE(folder_.has("out/execAfter.log"));
  }
}

TEST(Questions, AreAnsweredByFirstLetterOrWord) {
  EXPECT_EQ(promptFor(MessageButtons::yesNoCancel), "[Y]es, [N]o, [C]ancel? ");
  EXPECT_EQ(readAnswer("YES ", MessageButtons::yesNo), MessageAnswer::yes);
  EXPECT_EQ(readAnswer("c", MessageButtons::yesNo), std::nullopt);
}

TEST(InterruptWatch, NotesOneCtrlCAndForgetsItWhenAsked) {
  InterruptWatch watch;
  EXPECT_FALSE(watch.take());
  for (int n = 0; n < 2; ++n) {
    ::raise(SIGINT);
    EXPECT_TRUE(watch.take());
    EXPECT_FALSE(watch.take());
  }
}

}  // namespace
}  // namespace tamrikon
