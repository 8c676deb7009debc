#include "platform/large_pages.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>  // which also tells whose library it is

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace tamrikon {

#if defined(__GLIBC__) && defined(MADV_HUGEPAGE)

namespace {

// Addresses alone: memory is taken when it is first written. Enough for the compile of a project of
// 100,000 members; what a larger one takes beyond it comes in small pages.
constexpr int reserveBytes = 512 << 20;

// As high as the limit can rise by itself while a program runs.
constexpr int largestBlockInHeap = 32 << 20;

}  // namespace

void preferLargePages() {
  if (sizeof(void*) < 8) return;  // addresses are scarce
  const std::uintptr_t pageBytes = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  void* const begin = sbrk(0);
  // The next growth of the heap takes the reserve with it, if its blocks are too large for the
  // rest.
  mallopt(M_MMAP_THRESHOLD, largestBlockInHeap);
  mallopt(M_TRIM_THRESHOLD, 2 * reserveBytes - 1);
  mallopt(M_TOP_PAD, reserveBytes);
  void* volatile block =
      std::malloc(1 << 20);  // volatile, or the compiler would see no need for it
  std::free(block);
  mallopt(M_TOP_PAD, 128 << 10);  // as it was
  const auto from =
      (reinterpret_cast<std::uintptr_t>(begin) + pageBytes - 1) / pageBytes * pageBytes;
  const auto to = reinterpret_cast<std::uintptr_t>(sbrk(0));
  // Where it fails, pages stay as small as they were.
  if (from < to) madvise(reinterpret_cast<void*>(from), to - from, MADV_HUGEPAGE);
}

#else

void preferLargePages() {}

#endif

}  // namespace tamrikon
