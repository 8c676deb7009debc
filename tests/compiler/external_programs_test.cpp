#include "compiler/external_programs.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "compiler/store.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

/// The progress log with LF between its lines.
std::string logOf(const Session& session) {
  return replaceAll(session.progressDlg.Text1.text(), "\r\n", "\n");
}

class ExternalProgramsTest : public testing::Test {
 protected:
  ExternalProgramsTest() { session_.settings.outputPath = folder_ / "a 'b' $c"; }

  std::string run(const std::string& text) {
    session_.progressDlg.Text1.setText("");
    std::filesystem::create_directories(session_.settings.outputPath);
    ExternalPrograms(session_).runExternalPrograms(text);
    return logOf(session_);
  }

  test::TempFolder folder_;
  test::ScriptedToolkit toolkit_;
  Session session_{toolkit_, nativeFileSystem(), nativeProcessServices(), "/data"};
};

TEST_F(ExternalProgramsTest, ShowsInADialogWhichOneRunsAndItsErrors) {
  session_.showsPrograms = true;
  CommandButton& cancel = session_.progressDlg.CancelButton;
  std::string status;
  int questions = 0;
  toolkit_.answers = {MessageAnswer::no, MessageAnswer::yes};
  toolkit_.onCheckpoint = [&] {
    status = session_.progressDlg.StatusBar1.panel(1);
    if (!status.ends_with(": sleep 20")) return;
    cancel.userClicked();
    questions = static_cast<int>(toolkit_.boxes.size());
  };
  EXPECT_EQ(run("echo err >&2\rsleep 20\recho end"), "echo err >&2\nerr\nsleep 20\n\n");
  EXPECT_EQ(questions, 2) << "the first request waits, each later one asks";
  EXPECT_TRUE(status.starts_with("Waiting for the end")) << status;
}

TEST_F(ExternalProgramsTest, KeepsThemApartFromCtrlCOnTheTerminal) {
  EXPECT_EQ(run("kill -s INT 0"), "kill -s INT 0\n\n") << "their group isn't that of this test";
}

TEST_F(ExternalProgramsTest, ReportsWhatItCannotRun) {
  constexpr const char* kCannot = "ERROR: Cannot create and execute batch file.\n";
  EXPECT_EQ(run("  "), kCannot);  // no command leaves no log
  EXPECT_TRUE(folder_.has("a 'b' $c/execAfter.sh"));
  session_.settings.outputPath = folder_ / "gone";
  ExternalPrograms(session_).runExternalPrograms("echo");
  EXPECT_EQ(logOf(session_), std::string(kCannot) + kCannot);
}

class NoProcesses final : public ProcessServices {
 public:
  int pauses = 0;
  std::string GetEnvironmentVariable(const std::string&) override { return {}; }
  bool CreateProcess(const std::string&, const std::vector<std::string>&, ProcessHandle&,
                     int& error) override {
    error = 2;
    return false;
  }
  bool WaitForSingleObject(const ProcessHandle&, int) override { return true; }
  void TerminateProcess(const ProcessHandle&) override {}
  void CloseHandle(ProcessHandle&) override {}
  int GetThreadLocale() override { return 1033; }
  std::string GetLocaleInfoA(int, int) override { return std::string("1250\0\0", 6); }
  void Sleep(int) override { ++pauses; }
};

TEST_F(ExternalProgramsTest, TellsWhyAProcessDidNotStartAndRepeatsAFailingDelete) {
  NoProcesses processes;
  Session session(toolkit_, nativeFileSystem(), processes, "/data");
  session.settings.outputPath = folder_.path();
  ExternalPrograms programs(session);
  EXPECT_EQ(programs.threadCodePage(), 1250);
  programs.runExternalPrograms("echo");
  const std::string script = folder_ / "execAfter.sh";
  const std::string log = folder_ / "execAfter.log";
  EXPECT_EQ(logOf(session), "ERROR: Cannot execute /bin/sh " + script +
                                ".\nCreateProcess failed. Error: 2\n"
                                "ERROR: Cannot create and execute batch file.\n");
  // What looks like the log of an earlier run is taken for this one's.
  folder_.put("execAfter.log", "old");
  programs.runExternalPrograms("echo");
  EXPECT_TRUE(logOf(session).ends_with("\nold\n"));
  EXPECT_EQ(processes.pauses, 0);
}

}  // namespace
}  // namespace tamrikon
