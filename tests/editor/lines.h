// Comments as tests write them, and settings for their layout.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "base/text.h"
#include "comments/comment_lines.h"
#include "settings/project_settings.h"

namespace tamrikon::test {

/// "one|two" is two lines.
inline CommentLines lines(std::string_view text) {
  const auto pieces = split(text, '|');
  return {pieces.begin(), pieces.end()};
}

/// What the lines "key: value" of a case say; values can stand in quotes.
using TextCase = std::map<std::string, std::string>;

/// The cases of a file of tests/data/editor, each with its name in front.
inline std::vector<TextCase> casesIn(const std::string& name) {
  std::vector<TextCase> cases;
  std::ifstream file(TAMRIKON_TEST_DATA "/editor/" + name);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    if (line.starts_with("name: ")) cases.emplace_back();
    const std::size_t colon = line.find(": ");
    std::string value = line.substr(colon + 2);
    if (value.starts_with('"')) value = value.substr(1, value.size() - 2);
    cases.at(cases.size() - 1)[line.substr(0, colon)] = replaceAll(value, "\\t", "\t");
  }
  EXPECT_FALSE(cases.empty()) << name;
  return cases;
}

inline ProjectSettings layoutOf(int wordWrapLength, int autoInsertEOL) {
  ProjectSettings settings;
  settings.wordWrapLength = static_cast<std::int16_t>(wordWrapLength);
  settings.autoInsertEOL = static_cast<std::int16_t>(autoInsertEOL);
  settings.userName[1] = "a20LetterTagName12";
  return settings;
}

}  // namespace tamrikon::test
