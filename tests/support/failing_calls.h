// The system's calls about files, of which one fails. They are those of the program alone, not of
// the libraries that it is linked with: failing_calls.cmake puts them in its way.
#pragma once

#include "support/fault.h"

namespace tamrikon::test {

/// In place of an errno value: a write of half the bytes, and the next one finds no space.
constexpr int kShortWrite = -1;

struct FailingCalls {
  Fault fault;
  int error = 0;
};

FailingCalls& failingCalls();

}  // namespace tamrikon::test
