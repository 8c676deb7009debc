// A compile as its listener sees it.
#include "compiler/compile.h"

#include <gtest/gtest.h>

#include <functional>

#include "compiler/progress_log.h"
#include "compiler/store.h"
#include "support/open_project.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"
#include "support/test_session.h"

namespace tamrikon {
namespace {

/// Keeps what it is told.
class Listener final : public CompileListener {
 public:
  std::function<void(CompileRun&)> onCheckpoint = [](CompileRun&) {};
  std::string log;
  std::size_t done = 0;

  void addMessage(const std::string& text) override { log += text + "\n"; }
  void report(const Diagnostic& fault) override { addMessage(logLineOf(fault)); }
  void setProgress(std::size_t count, std::size_t) override { done = count; }
  void checkpoint(CompileRun& run) override { onCheckpoint(run); }
};

TEST(ProgressLog, LeavesOutAWarningThatRepeatsTheMessageBefore) {
  Listener listener;
  ProgressLog log(listener);
  using About = Diagnostic::About;
  const Diagnostic ofComment{About::comment, Severity::warning, "", "a"};
  const Diagnostic ofTemplate{About::template_, Severity::warning, "", "c"};
  log.report(ofComment);
  log.report(ofComment);
  log.logMessage("b");
  log.logMessage("b");
  log.report(ofComment);
  log.report(ofTemplate);
  log.report(ofTemplate);
  EXPECT_EQ(listener.log,
            "Warning: a\nb\nb\nWarning: a\nWARNING (config file): c\nWARNING (config file): c\n");
}

class CompileTest : public testing::Test {
 protected:
  CompileTest() {
    folder_.put("COne.cls", "'**\n'Fills.\nPublic Sub Fill()\nEnd Sub\n");
    folder_.put("One.vbp", "Type=Exe\nName=\"One\"\nClass=COne; COne.cls\n");
    run_.runsPrograms = false;
  }

  void open() {
    std::filesystem::create_directories(folder_ / "out");
    ide_ = test::openProject(folder_ / "One.vbp");
    session_.settingsFile.setDefaultSettings(*ide_);
    session_.settings.templatePath = folder_ / "t.tmkt";
    session_.settings.outputPath = folder_ / "out";
  }

  CompileResult compile() { return compileProject(session_, *ide_, run_, listener_); }

  test::TempFolder folder_;
  test::ScriptedToolkit toolkit_;
  test::TestSession session_{toolkit_};
  CompileRun run_;
  Listener listener_;
  std::unique_ptr<HostIde> ide_;
};

TEST_F(CompileTest, StopsAtTheCheckpointBehindACancel) {
  folder_.put("COne.cls",
              "'**\n'Fills.\nPublic Sub Fill()\nEnd Sub\nPublic Sub Empty_()\nEnd Sub\n");
  folder_.put("t.tmkt",
              "$MEMBER-EXT$ .m\n$PROJECT-EXT$ .p\n$CONTENTS-EXT$ .c\n$INDEX-EXT$ .i\n$X$ x\n");
  open();
  // Events get through before each of two members, behind four steps of preparation and four pages,
  // before each of three topics and behind the external programs.
  for (const auto& [pump, files] :
       {std::pair{1, 0}, {6, 0}, {7, 1}, {11, 4}, {13, 6}, {14, 7}, {15, 7}}) {
    SCOPED_TRACE(pump);
    int count = 0;
    listener_.onCheckpoint = [&, last = pump](CompileRun& run) {
      run.cancelRequested = ++count >= last;
    };
    std::filesystem::remove_all(folder_ / "out");
    std::filesystem::create_directory(folder_ / "out");
    const CompileResult result = compile();
    const bool isStopped = pump < 15;
    EXPECT_EQ(result.outcome, isStopped ? CompileOutcome::aborted : CompileOutcome::finished);
    EXPECT_EQ(nativeFileSystem().list(folder_ / "out").size(), std::size_t(files));
    EXPECT_EQ(result.compiled->evaluateMacro("X"), isStopped ? "$X$" : "x");
  }
}

TEST_F(CompileTest, FinishedTopicsOfASingleFileAreWrittenWhateverEndsTheCompile) {
  folder_.put("CTwo.cls", "'**\n'$tamrik-loop$\nPublic Sub Spill()\nEnd Sub\n");
  folder_.put("One.vbp", "Type=Exe\nName=\"One\"\nClass=COne; COne.cls\nClass=CTwo; CTwo.cls\n");
  // What is left out counts, but takes no time.
  std::string sections = "$SPLIT$ 0\n$MEMBER-EXT$ .m\n$tamrik-loop$\n$IFNOTEMPTY$ $NO$\n" +
                         std::string(1 << 20, 'x') +
                         "$END-IFNOTEMPTY$$tamrik-loop$$tamrik-loop$\n$end-tamrik-loop$\n";
  for (const std::string name : {"project", "title", "contents"}) {
    sections += "$tamrik-" + name + "-body$\n$end-tamrik-" + name + "-body$\n";
  }
  folder_.put("t.tmkt", sections +
                            "$tamrik-object-body$\n$MEMBER-NAME$;\n$end-tamrik-object-body$\n"
                            "$tamrik-method-body$\n$MEMBER-DESCRIPTION$;\n"
                            "$end-tamrik-method-body$\n");
  open();
  listener_.onCheckpoint = [&](CompileRun& run) { run.cancelRequested = listener_.done == 2; };
  EXPECT_EQ(compile().outcome, CompileOutcome::aborted);
  EXPECT_EQ(folder_.get("out/One.m"), "COne;Fills.\r\n;");

  listener_ = {};
  EXPECT_EQ(compile().outcome, CompileOutcome::failed);
  EXPECT_EQ(folder_.get("out/One.m"), "COne;Fills.\r\n;CTwo;");
  EXPECT_EQ(listener_.log,
            "Project: One\nERROR: The expansion of tamrik-method-body has no end: its bounds of "
            "calls and text are used up at $tamrik-loop$, in the topic of CTwo.Spill\n");
}

}  // namespace
}  // namespace tamrikon
