// The lines of a module as they stood at one time, and what is asked of them. Whoever edits the
// module makes a new one.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vb/shared_lines.h"

namespace tamrikon {

/// Lines count from 1; a line number outside the module gives an empty line.
class ModuleLines {
 public:
  explicit ModuleLines(SharedLines lines);
  ModuleLines(const ModuleLines&) = delete;
  ModuleLines& operator=(const ModuleLines&) = delete;

  /// Bytes, without line ends.
  std::size_t textSize() const { return textSize_; }
  int count() const { return static_cast<int>(shared_.lines->size()); }
  std::string_view line(int number) const;

  /// What keeps the text of the lines alive, for those who keep some of them.
  const std::shared_ptr<const void>& memory() const { return shared_.memory; }

  /// The first line of the statement that a logical line stands for: logical lines count a
  /// statement with its continuation lines as one.
  int toPhysicalLine(int logicalLine) const;

  /// The first line of the statement that `line` belongs to.
  int statementStartLine(int line) const;

  /// The statement that `line` belongs to, on one line: leading blanks and the underscores at line
  /// ends are cut, the blank before an underscore stays. Of more than 64 KB, the start.
  std::string getDeclaration(int line) const;

  /// The lines joined by CR, with none behind the last. Empty lines at the start leave no trace.
  std::string getLinesText(int firstLine, int lastLine) const;

 private:
  SharedLines shared_;
  std::size_t textSize_ = 0;
  std::vector<int> statementStarts_;  // by logical line - 1
};

}  // namespace tamrikon
