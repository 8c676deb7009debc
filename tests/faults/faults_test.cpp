// Whatever fails once while the program runs: it says so and names the file, or does its work
// nevertheless. Sources and settings are then the old ones or the new ones, byte for byte.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <map>

#include "base/case_folding.h"
#include "support/failing_calls.h"
#include "support/failing_files.h"
#include "support/program_run.h"
#include "support/temp_folder.h"

namespace tamrikon {

// The linker's names for nativeFileSystem() and for what stands in its place.
FileSystem& realFiles() asm("__real__ZN8tamrikon16nativeFileSystemEv");
FileSystem& wrappedFiles() asm("__wrap__ZN8tamrikon16nativeFileSystemEv");

namespace {

namespace fs = std::filesystem;
using test::Fault;
using test::ProgramRun;

test::FailingFiles& failingFiles() {
  static test::FailingFiles files(realFiles());
  return files;
}

/// Thousands of projects are made anew, best where no disk is waited for.
[[maybe_unused]] const bool isInMemory =
    fs::is_directory("/dev/shm") && ::setenv("TMPDIR", "/dev/shm", 0) == 0;

using Files = std::map<std::string, std::string>;  // mode and bytes, by name

/// A project, and what a command does to it.
class Scenario {
 public:
  Scenario(const std::string& command, const std::vector<std::string>& more, const Files& changed)
      : arguments_{command, folder_ / "Shop.vbp"} {
    for (std::string word : more) {
      if (word == "T") word = folder_ / "own.tmkt";
      arguments_.push_back(word);
    }
    files_ = {
        {"Cart.cls", "'**\r\n'Fills it.\r\nPublic Sub Fill()\r\nEnd Sub\r\n"},
        {"Tools.bas",
         "Attribute VB_Name = \"Tools\"\n'**\n'Sums.\nFunction Sum()\n"
         "End Function\nPublic Function Bare()\nEnd Function\n"},
        {"Shop.vbp", "Type=Exe\nClass=Cart; Cart.cls\nModule=Tools; tools.bas\nName=\"Shop\"\n"},
        {"Shop.tamrik",
         "#Tamrikon Project Settings#\ncomContextID = 1\n"
         "comModules = Cart\ncomModules = Tools\n"},
        {"own.tmkt", kTemplate}};
    for (const auto& [name, text] : changed) files_[name] = text;
    reset();
    old_ = snapshot();
    EXPECT_EQ(run("").status, 0);
    new_ = snapshot();
    EXPECT_NE(new_, old_);
  }

  /// Each operation of a layer fails in one of the runs.
  void failEach(Fault& fault, const std::string& answer) {
    for (int number = 1;; ++number) {
      reset();
      fault.strikeAt(number);
      const ProgramRun result = run(answer);
      if (!fault.hasStruck()) {
        fault.strikeAt(0);
        EXPECT_GT(number, 1);
        break;
      }
      SCOPED_TRACE("operation " + std::to_string(number) + " on " + fault.path() + ", status " +
                   std::to_string(result.status) + ", " + result.err);
      check(result, fault.path());
    }
  }

 private:
  static constexpr const char* kTemplate =
      "$MEMBER-EXT$ .txt\n$PROJECT-EXT$ .p\n$INDEX-EXT$ .i\n$CONTENTS-EXT$ .c\n"
      "$tamrik-help-file$\nout.chm\n$end-tamrik-help-file$\n"
      "$tamrik-method-body$\n$MEMBER-DESCRIPTION$\n$end-tamrik-method-body$\n"
      "$tamrik-function-body$\n$MEMBER-DESCRIPTION$\n$end-tamrik-function-body$\n";

  void reset() const {
    fs::remove_all(folder_.path());
    for (const auto& [name, text] : files_) {
      ::chmod(folder_.put(name, text).c_str(), 0640);
    }
  }

  Files snapshot() const {
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.path())) {
      const std::string name = fs::relative(entry.path(), folder_.path());
      if (!entry.is_regular_file()) continue;
      files[name] = std::to_string(int(entry.status().permissions())) + '\n' + folder_.get(name);
    }
    return files;
  }

  /// A few questions are answered by `answer`, and by "y" where that is no answer; then nobody is
  /// there any more.
  ProgramRun run(const std::string& answer) const {
    int count = 0;
    return ProgramRun(arguments_, [&](Streams& streams) {
      streams.readLine = [&]() -> std::optional<std::string> {
        if (++count > 6) return std::nullopt;
        return count % 2 == 1 ? answer : "y";
      };
    });
  }

  void check(const ProgramRun& result, const std::string& struck) const {
    const Files now = snapshot();
    const bool isWhole = now == new_;
    for (const auto& [name, text] : now) {
      const bool isKept = name.ends_with(".bak");
      EXPECT_TRUE(old_.count(name) + new_.count(name) > 0 || isKept) << name << " stays behind";
    }
    for (const auto& [name, text] : old_) {
      const bool isThere = now.count(name) == 1;
      const bool isKept = text.substr(text.find('\n') + 1) == folder_.get(name + ".bak");
      EXPECT_TRUE(isThere && (now.at(name) == text || now.at(name) == new_.at(name) || isKept))
          << name << " is lost";
    }
    if (isWhole && result.status == 0) return;
    EXPECT_NE(lowered(result.err).find(lowered(struck)), std::string::npos) << "it isn't named";
    EXPECT_TRUE(result.status == 1 || result.err.find("warning: ") != std::string::npos);
  }

  test::TempFolder folder_;
  std::vector<std::string> arguments_;
  Files files_;
  Files old_;
  Files new_;
};

void failEverywhere(Scenario& scenario) {
  for (const std::string answer : {"r", "c"}) {
    for (const int error : {ENOSPC, EACCES, ENOTDIR, EIO, test::kShortWrite}) {
      if (answer == "c" && (error == ENOTDIR || error == EIO)) continue;  // as for the others
      SCOPED_TRACE(answer + " to errno " + std::to_string(error));
      test::failingCalls().error = error;
      scenario.failEach(test::failingCalls().fault, answer);
    }
    for (const FileError error :
         {FileError::diskFull, FileError::permissionDenied, FileError::pathNotFound}) {
      SCOPED_TRACE(answer + " to " + std::to_string(static_cast<int>(error)));
      failingFiles().error = error;
      scenario.failEach(failingFiles().fault, answer);
    }
  }
}

TEST(Faults, OfACompile) {
  Scenario scenario("compile", {"--template", "T", "--save", "--no-exec"},
                    {{"Shop.vbp", "Type=Exe\nClass=Cart; Cart.cls\nName=\"Shop\"\n"}});
  failEverywhere(scenario);
}

TEST(Faults, OfACompileIntoOneFile) {
  const std::string split = "$SPLIT$ 0\n$MEMBER-EXT$ .txt\n";
  Scenario scenario("compile", {"--template", "T", "--no-exec"},
                    {{"own.tmkt", split + "$tamrik-contents-body$\nx\n$end-tamrik-contents-body$\n"
                                          "$tamrik-index-body$\ny\n$end-tamrik-index-body$\n"}});
  failEverywhere(scenario);
}

TEST(Faults, OfSettings) {
  // Settings that can't be read are kept under another name, and so are those of others.
  const Files noModules = {{"Shop.vbp", "Type=Exe\nName=\"Shop\"\n"}};
  Scenario changed("settings", {"addSee=0"}, noModules);
  failEverywhere(changed);
  Files notOurs = noModules;
  notOurs["Shop.tamrik"] = "something else\n";
  Scenario replaced("settings", {"addSee=0"}, notOurs);
  failEverywhere(replaced);
}

TEST(Faults, OfSources) {
  Scenario scenario("comment", {"--missing"}, {});
  failEverywhere(scenario);
}

}  // namespace

FileSystem& wrappedFiles() {
  return failingFiles();
}

}  // namespace tamrikon
