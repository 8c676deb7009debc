// What a fuzzer calls, and what it may demand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

/// Takes any bytes; must neither crash nor hang.
void fuzz(const std::string& data);

namespace tamrikon::test {

inline void demand(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "fuzz: %s\n", what);
  std::abort();
}

}  // namespace tamrikon::test

#ifdef TAMRIKON_FUZZER
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
#endif
