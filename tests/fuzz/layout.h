// How the comment editor lays out what it writes, from one byte of a fuzzer's input.
#pragma once

#include <cstdint>

#include "settings/project_settings.h"

namespace tamrikon::test {

inline ProjectSettings layoutFrom(char choice) {
  ProjectSettings settings;
  settings.wordWrapLength = static_cast<std::int16_t>(choice);
  settings.autoInsertEOL = static_cast<std::int16_t>(choice & 1);
  return settings;
}

}  // namespace tamrikon::test
