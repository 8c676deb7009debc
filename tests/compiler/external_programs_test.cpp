#include "compiler/external_programs.h"

#include <gtest/gtest.h>

#include "compiler/store.h"
#include "support/open_project.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"
#include "support/test_session.h"

namespace tamrikon {
namespace {

class ExternalProgramsTest : public testing::Test, protected CompileListener {
 protected:
  ExternalProgramsTest() {
    folder_.put("P.vbp", "Type=Exe\n");
    ide_ = test::openProject(folder_ / "P.vbp");
    session_.settings.outputPath = folder_ / "a 'b' $c";
  }

  /// The log of that run.
  std::string run(const std::string& text) { return run(session_, text); }

  std::string run(Session& session, const std::string& text) {
    log_.clear();
    store compiled(session.settings, *this);
    CompileContext context(session, *ide_, run_, *this, compiled);
    ExternalPrograms(context).runExternalPrograms(text);
    return log_;
  }

  void addMessage(const std::string& text) override { log_ += text + "\n"; }
  void addProgramOutput(const ProgramOutput& output) override { addMessage(output.log); }
  void report(const Diagnostic& fault) override { addMessage(logLineOf(fault)); }

  test::TempFolder folder_;
  test::ScriptedToolkit toolkit_;
  test::TestSession session_{toolkit_};
  CompileRun run_;
  std::unique_ptr<HostIde> ide_;
  std::string log_;
};

TEST_F(ExternalProgramsTest, KeepsThemApartFromCtrlCOnTheTerminal) {
  std::filesystem::create_directories(session_.settings.outputPath);
  EXPECT_EQ(run("kill -s INT 0"), "kill -s INT 0\n\n") << "their group isn't that of this test";
}

TEST_F(ExternalProgramsTest, ReportsWhatItCannotRun) {
  constexpr const char* kCannot = "ERROR: Cannot create and execute batch file.\n";
  std::filesystem::create_directories(session_.settings.outputPath);
  EXPECT_EQ(run("  "), kCannot);  // no command leaves no log
  EXPECT_TRUE(folder_.has("a 'b' $c/execAfter.sh"));
  session_.settings.outputPath = folder_ / "gone";
  EXPECT_EQ(run("echo"), kCannot);
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
  test::TestSession session(toolkit_, processes);
  session.settings.outputPath = folder_.path();
  const std::string script = folder_ / "execAfter.sh";
  const std::string log = folder_ / "execAfter.log";
  EXPECT_EQ(run(session, "echo"), "ERROR: Cannot execute /bin/sh " + script +
                                      ".\nCreateProcess failed. Error: 2\n"
                                      "ERROR: Cannot create and execute batch file.\n");
  // What looks like the log of an earlier run is taken for this one's.
  folder_.put("execAfter.log", "old");
  EXPECT_TRUE(run(session, "echo").ends_with("\nold\n"));
  EXPECT_EQ(processes.pauses, 0);
}

}  // namespace
}  // namespace tamrikon
