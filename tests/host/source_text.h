// What tests look at in a source file.
#pragma once

#include <string>
#include <vector>

#include "base/text.h"
#include "host/save_failure.h"
#include "source/source_file.h"

namespace tamrikon::test {

/// The lines that a person sees, divided by "|".
inline std::string visible(const SourceFile& file) {
  return replaceAll(file.text(1, file.lineCount()), "\r\n", "|");
}

/// What people read of saves that failed.
inline std::vector<std::string> texts(const std::vector<SaveFailure>& failures) {
  std::vector<std::string> texts;
  for (const SaveFailure& failure : failures) texts.push_back(failure.text);
  return texts;
}

inline std::string saved(const SourceFile& file) {
  LackingCharacter lacking;
  return file.bytes(lacking).value_or("not saved");
}

}  // namespace tamrikon::test
