// Cases of a rule as a text file of tests/data: paragraphs of lines "key: value". Lines that begin
// with "#" are comments.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace tamrikon::test {

class TextCase {
 public:
  explicit TextCase(std::string where) : where_(std::move(where)) {}

  /// Empty if the case has no such key.
  std::string operator[](const std::string& key) const { return has(key) ? values_.at(key) : ""; }
  /// 0 if the case has no such key.
  int number(const std::string& key) const { return has(key) ? std::stoi(values_.at(key)) : 0; }
  /// The parts of a value that "|" divides; none if the case has no such key.
  std::vector<std::string> list(const std::string& key) const {
    if (!has(key)) return {};
    const auto parts = split(values_.at(key), '|');
    return {parts.begin(), parts.end()};
  }
  bool has(const std::string& key) const { return values_.count(key) > 0; }
  const std::string& where() const { return where_; }  // its file and line

  void set(const std::string& key, const std::string& value) {
    EXPECT_TRUE(values_.try_emplace(key, value).second) << where_ << ": " << key << " twice";
  }

 private:
  std::string where_;
  std::map<std::string, std::string> values_;
};

/// The text between quotes, if there are any, with what stands for \t, \r, \n, \\ and bytes (\xE9).
inline std::string textCaseValue(std::string_view written) {
  if (written.starts_with('"')) written = written.substr(1, written.size() - 2);
  std::string value;
  for (std::size_t at = 0; at < written.size(); ++at) {
    if (written[at] != '\\') {
      value += written[at];
      continue;
    }
    switch (written[++at]) {
      case 't': value += '\t'; break;
      case 'r': value += '\r'; break;
      case 'n': value += '\n'; break;
      case 'x':
        value += static_cast<char>(std::stoi(std::string(written.substr(at + 1, 2)), nullptr, 16));
        at += 2;
        break;
      default: value += written[at];
    }
  }
  return value;
}

/// Calls `run` with each case of a file; a key that isn't "name" or one of `keys` is a failure.
template <typename Run>
void forEachCase(const std::string& file, const std::vector<std::string>& keys, Run run) {
  std::vector<TextCase> cases;
  std::ifstream lines(TAMRIKON_TEST_DATA "/" + file);
  bool isNew = true;
  int number = 0;
  for (std::string line; std::getline(lines, line);) {
    ++number;
    if (line.empty()) isNew = true;
    if (line.empty() || line.starts_with('#')) continue;
    if (isNew) cases.emplace_back(file + ":" + std::to_string(number));
    isNew = false;
    const std::string key = line.substr(0, line.find(": "));
    const bool isKnown = key == "name" || std::count(keys.begin(), keys.end(), key) > 0;
    EXPECT_TRUE(isKnown) << cases.back().where() << ": " << line;
    if (isKnown) cases.back().set(key, textCaseValue(line.substr(key.size() + 2)));
  }
  EXPECT_FALSE(cases.empty()) << file;
  for (const TextCase& each : cases) {
    SCOPED_TRACE(each.where() + " " + each["name"]);
    run(each);
  }
}

}  // namespace tamrikon::test
