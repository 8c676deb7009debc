#include "vb/module_lines.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "vb/vb_text.h"

namespace tamrikon {
namespace {

// Visual Basic takes 25 lines of 1023 characters. A longer one can declare thousands of names, of
// which each would be given all of it.
constexpr std::size_t kLongestStatement = 1 << 16;

}  // namespace

ModuleLines::ModuleLines(SharedLines lines) : shared_(std::move(lines)) {
  bool continues = false;
  for (int number = 1; number <= count(); ++number) {
    if (!continues) statementStarts_.push_back(number);
    continues = isContinued(line(number));
    textSize_ += line(number).size();
  }
}

std::string_view ModuleLines::line(int number) const {
  if (number < 1 || number > count()) return {};
  return (*shared_.lines)[static_cast<std::size_t>(number - 1)];
}

int ModuleLines::toPhysicalLine(int logicalLine) const {
  if (logicalLine < 1) return logicalLine;
  const int statements = static_cast<int>(statementStarts_.size());
  if (logicalLine <= statements) return statementStarts_[static_cast<std::size_t>(logicalLine - 1)];
  return logicalLine + (count() - statements);
}

int ModuleLines::statementStartLine(int line) const {
  while (line > 1 && isContinued(this->line(line - 1))) --line;
  return line;
}

std::string ModuleLines::getDeclaration(int line) const {
  std::string result;
  for (int number = statementStartLine(line); number <= count(); ++number) {
    std::string_view text = this->line(number);
    const bool continues = isContinued(text);
    if (continues) text.remove_suffix(1);
    result += trimLeading(text);
    if (!continues || result.size() > kLongestStatement) break;
  }
  if (result.size() > kLongestStatement) {
    result.resize(std::min(result.rfind(' ', kLongestStatement), kLongestStatement));
  }
  return result;
}

std::string ModuleLines::getLinesText(int firstLine, int lastLine) const {
  std::size_t size = 0;
  for (int number = firstLine; number <= lastLine; ++number) size += line(number).size() + 1;
  std::string result;
  result.reserve(size);
  for (int number = firstLine; number <= lastLine; ++number) {
    if (!result.empty()) result += '\r';
    result += line(number);
  }
  return result;
}

}  // namespace tamrikon
