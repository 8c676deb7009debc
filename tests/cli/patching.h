// Applies unified diffs, each line of which has to fit.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "base/text.h"

namespace tamrikon::test {

inline std::vector<std::string> linesWithEnds(const std::string& text) {
  std::vector<std::string> lines;
  for (std::istringstream rest(text); rest.peek() != EOF;) {
    std::getline(rest, lines.emplace_back());
    if (!rest.eof()) lines.back() += '\n';
  }
  return lines;
}

/// `before` with the diff of one file applied; a text that no test expects if it doesn't fit.
inline std::string patched(const std::string& before, const std::string& diff) {
  const std::vector<std::string> old = linesWithEnds(before);
  std::size_t next = 0;
  std::string result;
  const std::string marked = replaceAll(diff, "\n\\ No newline at end of file\n", "\1\n");
  const std::vector<std::string> lines = linesWithEnds(marked);
  for (std::size_t i = 2; i < lines.size(); ++i) {
    const std::string& line = lines[i];
    const std::string text = replaceAll(line.substr(1), "\1\n", "");
    if (line[0] == '@') {
      const bool isBehind = line.find(",0 +") != std::string::npos;
      const std::size_t start = std::stoul(line.substr(4)) - (isBehind ? 0 : 1);
      while (next < std::min(start, old.size())) result += old[next++];
    } else if (line[0] == '+') {
      result += text;
    } else {
      if (next == old.size() || old[next++] != text) return "(doesn't fit: " + line + ")";
      if (line[0] == ' ') result += text;
    }
  }
  while (next < old.size()) result += old[next++];
  return result;
}

}  // namespace tamrikon::test
