// What tests look at in a source file.
#pragma once

#include <string>

#include "base/text.h"
#include "host/source_file.h"

namespace tamrikon::test {

/// The lines that a person sees, divided by "|".
inline std::string visible(const SourceFile& file) {
  return replaceAll(file.text(1, file.lineCount()), "\r\n", "|");
}

inline std::string saved(const SourceFile& file) {
  LackingCharacter lacking;
  return file.bytes(lacking).value_or("not saved");
}

}  // namespace tamrikon::test
