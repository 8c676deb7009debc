// Runs the cases of tests/data/commands and those that lie beside a project in tests/data/compile.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <map>

#include "base/text.h"
#include "cli/command_case.h"
#include "support/program_run.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

namespace fs = std::filesystem;
using test::CommandStep;

std::vector<std::string> cases() {
  std::vector<std::string> names;
  for (const char* folder : {"/commands", "/compile"}) {
    for (const auto& entry :
         fs::recursive_directory_iterator(TAMRIKON_TEST_DATA + std::string(folder))) {
      if (entry.path().extension() == ".case") names.push_back(entry.path());
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

class CommandCase : public testing::TestWithParam<std::string> {
 protected:
  CommandCase() { fs::current_path(folder_.path()); }
  ~CommandCase() override {
    fs::current_path(home_);
    for (const auto& [name, value] : environment_) {
      if (value) {
        ::setenv(name.c_str(), value->c_str(), 1);
      } else {
        ::unsetenv(name.c_str());
      }
    }
  }

  void take(const CommandStep& step) {
    if (step.verb == "copy") {
      fs::copy(fs::path(GetParam()).parent_path() / step.argument, folder_.path(),
               fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    } else if (step.verb == "environment") {
      setVariable(step.argument);
    } else if (step.verb == "file") {
      const std::string path = folder_.put(step.argument, step.body);
      if (step.is("program")) fs::permissions(path, fs::perms::owner_all);
    } else if (step.verb == "folder") {
      fs::create_directories(folder_ / step.argument);
    } else if (step.verb == "in") {
      fs::current_path(folder_ / step.argument);
    } else if (step.verb == "remove") {
      EXPECT_TRUE(fs::remove_all(folder_ / step.argument));
    } else if (step.verb == "run") {
      run(step);
    } else if (step.verb == "holds") {
      expect(folder_.has(step.argument) ? folder_.get(step.argument) : "(no such file)\n",
             step.body);
    } else if (step.verb == "lacks") {
      EXPECT_FALSE(folder_.has(step.argument));
    } else if (step.verb == "pages") {
      comparePages(step.argument);
    } else {
      ADD_FAILURE() << "there is no step " << step.verb;
    }
  }

 private:
  void setVariable(const std::string& assignment) {
    const std::string name = assignment.substr(0, assignment.find('='));
    const char* old = ::getenv(name.c_str());
    environment_.try_emplace(name, old == nullptr ? std::nullopt : std::optional<std::string>(old));
    const std::string value = replaceAll(assignment.substr(name.size() + 1), "~", folder_.path());
    ::setenv(name.c_str(), value.c_str(), 1);
  }

  /// Lines of the body that begin with "! " are the errors, the others the output.
  void run(const CommandStep& step) {
    std::string out;
    std::string errors;
    for (std::string_view rest = step.body; !rest.empty();) {
      const std::string line(rest.substr(0, rest.find('\n') + 1));
      rest.remove_prefix(line.size());
      const bool isError = line.starts_with("! ");
      (isError ? errors : out) += line.substr(isError ? 2 : 0);
    }
    const test::ProgramRun run(test::commandWords(replaceAll(step.argument, "~", folder_.path())),
                               [&](Streams& streams) {
                                 streams.outIsTerminal = step.is("terminal");
                                 streams.isInterrupted = [&] { return step.is("stopped"); };
                               });
    const std::size_t status = step.options.find("status ");
    EXPECT_EQ(run.status,
              status == std::string::npos ? 0 : std::stoi(step.options.substr(status + 7)));
    expect(run.out, out);
    expect(run.err, errors);
  }

  void expect(const std::string& given, const std::string& expected) {
    const std::string text = replaceAll(given, folder_.path(), "~");
    EXPECT_TRUE(test::isAsExpected(text, expected)) << "expected:\n"
                                                    << expected << "but it is:\n"
                                                    << text;
  }

  /// The text of each file, without CR.
  std::map<std::string, std::string> textsIn(const std::string& folder) const {
    std::map<std::string, std::string> texts;
    for (const auto& file : fs::recursive_directory_iterator(folder_ / folder)) {
      if (!file.is_regular_file()) continue;
      const std::string name = file.path().lexically_relative(folder_ / folder);
      texts[name] = replaceAll(folder_.get(folder + "/" + name), "\r", "");
    }
    return texts;
  }

  void comparePages(const std::string& folders) {
    const std::string_view like = " like ";
    const std::size_t end = folders.find(like);
    const auto pages = textsIn(folders.substr(0, end));
    const auto expected = textsIn(folders.substr(end + like.size()));
    for (const auto& [name, text] : expected) {
      const auto page = pages.find(name);
      EXPECT_EQ(page == pages.end() ? "(no such page)" : page->second, text) << name;
    }
    for (const auto& page : pages) EXPECT_TRUE(expected.count(page.first)) << page.first;
  }

  test::TempFolder folder_;
  const fs::path home_ = fs::current_path();
  std::map<std::string, std::optional<std::string>> environment_;  // as it was
};

TEST_P(CommandCase, PrintsAndLeavesWhatItSays) {
  for (const CommandStep& step : test::readCommandSteps(GetParam())) {
    SCOPED_TRACE(GetParam() + ":" + std::to_string(step.line));
    take(step);
  }
}

INSTANTIATE_TEST_SUITE_P(Files, CommandCase, testing::ValuesIn(cases()), [](const auto& info) {
  std::string name = fs::path(info.param).stem();
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

}  // namespace
}  // namespace tamrikon
