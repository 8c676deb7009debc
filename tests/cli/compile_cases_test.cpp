// Whole compiles: each folder of tests/data/compile holds a project, a template, the arguments (one
// a line) and the expected pages, log and, where they matter, both outputs. CR LF of the pages is
// compared as LF, and the folder of the cases is left out of messages.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include "base/text.h"
#include "support/program_run.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

namespace fs = std::filesystem;

std::string textOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), {}};
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  return text;
}

std::map<std::string, std::string> textsIn(const fs::path& folder) {
  std::map<std::string, std::string> texts;
  for (const auto& file : fs::recursive_directory_iterator(folder)) {
    if (!file.is_regular_file()) continue;
    texts[file.path().lexically_relative(folder).string()] = textOf(file.path());
  }
  return texts;
}

/// The group of the folder, or its project.
fs::path projectOf(const fs::path& folder) {
  fs::path project;
  for (const auto& file : fs::directory_iterator(folder)) {
    const fs::path extension = file.path().extension();
    if (extension == ".vbg" || (extension == ".vbp" && project.empty())) project = file.path();
  }
  return project;
}

std::vector<std::string> cases() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(TAMRIKON_TEST_DATA "/compile")) {
    names.push_back(entry.path().filename().string());
  }
  return names;
}

class CompileCase : public testing::TestWithParam<std::string> {};

TEST_P(CompileCase, GivesTheExpectedPagesAndLog) {
  const fs::path folder = fs::path(TAMRIKON_TEST_DATA "/compile") / GetParam();
  const test::TempFolder output;
  const test::TempFolder log;
  std::vector<std::string> arguments = {"compile",     projectOf(folder), "--output",
                                        output.path(), "--log",           log / "log.txt"};
  std::ifstream argumentLines(folder / "arguments");
  for (std::string line; std::getline(argumentLines, line);) {
    const bool isTemplate = arguments.back() == "--template";
    arguments.push_back(isTemplate ? (folder / line).string() : line);
  }
  const test::ProgramRun run(arguments);
  const std::string warnings = textOf(folder / "expected.err");
  EXPECT_EQ(run.status, warnings.empty() ? 0 : 3);
  EXPECT_EQ(replaceAll(run.err, TAMRIKON_TEST_DATA "/compile/", ""), warnings);
  EXPECT_EQ(log.get("log.txt"), textOf(folder / "expected.log"));
  if (fs::exists(folder / "expected.out")) {
    EXPECT_EQ(replaceAll(run.out, output.path(), "OUT"), textOf(folder / "expected.out"));
  }
  const auto expected = textsIn(folder / "expected");
  const auto pages = textsIn(output.path());
  for (const auto& [name, text] : expected) {
    const auto page = pages.find(name);
    EXPECT_EQ(page == pages.end() ? "(no such page)" : page->second, text) << name;
  }
  for (const auto& page : pages) EXPECT_TRUE(expected.count(page.first)) << page.first;
}

INSTANTIATE_TEST_SUITE_P(Projects, CompileCase, testing::ValuesIn(cases()), [](const auto& info) {
  std::string name = info.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

}  // namespace
}  // namespace tamrikon
