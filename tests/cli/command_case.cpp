#include "cli/command_case.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/text.h"

namespace tamrikon::test {
namespace {

CommandStep stepOf(std::string line, int number) {
  CommandStep step;
  step.line = number;
  line.erase(0, 4);
  step.verb = line.substr(0, line.find(' '));
  line.erase(0, step.verb.size() + 1);
  if (line.starts_with('(')) {
    const std::size_t end = line.find(')');
    step.options = line.substr(1, end - 1);
    line.erase(0, end + 2);
  }
  step.argument = line;
  return step;
}

/// \xE9 is the byte of that number.
std::string withBytes(std::string text) {
  for (std::size_t at = 0; (at = text.find("\\x", at)) != std::string::npos; ++at) {
    text.replace(at, 4, 1, static_cast<char>(std::stoi(text.substr(at + 2, 2), nullptr, 16)));
  }
  return text;
}

}  // namespace

std::vector<CommandStep> readCommandSteps(const std::string& path) {
  std::vector<CommandStep> steps;
  std::ifstream file(path);
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    ++number;
    const bool isStep = line.starts_with("=== ");
    if (isStep) {
      steps.push_back(stepOf(withBytes(line), number));
    } else if (!steps.empty()) {
      steps.back().body += withBytes(line) + "\n";
    }
  }
  for (CommandStep& step : steps) {
    const bool isSetApart = step.body == "\n" || step.body.ends_with("\n\n");
    if (isSetApart || step.is("unended")) step.body.pop_back();
    if (isSetApart && step.is("unended")) step.body.pop_back();
    if (step.is("crlf")) step.body = replaceAll(step.body, "\n", "\r\n");
  }
  EXPECT_FALSE(steps.empty()) << path;
  return steps;
}

std::vector<std::string> commandWords(const std::string& command) {
  std::vector<std::string> words;
  char quote = ' ';
  bool isInWord = false;
  for (const char c : command) {
    const bool isQuote = c == '\'' || c == '"';
    if (!isInWord && c != ' ') words.emplace_back();
    isInWord = c != ' ' || quote != ' ';
    if (isQuote && (quote == ' ' || quote == c)) {
      quote = quote == ' ' ? c : ' ';
    } else if (isInWord) {
      words.back() += c;
    }
  }
  return words;
}

bool isAsExpected(std::string_view text, std::string_view expected) {
  constexpr std::string_view kAny = "...";
  const std::size_t any = expected.find(kAny);
  if (any == std::string_view::npos) return text == expected;
  if (!text.starts_with(expected.substr(0, any))) return false;
  text.remove_prefix(any);
  const bool begins = any == 0 || expected[any - 1] == '\n';
  expected.remove_prefix(any + kAny.size());
  const std::string_view lineEnd = expected.starts_with('\r') ? "\r\n" : "\n";
  const bool isLines = begins && expected.starts_with(lineEnd);
  if (isLines) expected.remove_prefix(lineEnd.size());
  while (!isAsExpected(text, expected)) {
    const std::size_t end = isLines ? text.find('\n') : 0;
    if (text.empty() || end == text.npos || (!isLines && text[0] == '\n')) return false;
    text.remove_prefix(end + 1);
  }
  return true;
}

}  // namespace tamrikon::test
