#include "support/failing_calls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <map>
#include <utility>

namespace tamrikon::test {
namespace {

std::map<int, std::string>& names() {  // of open files
  static std::map<int, std::string> byDescriptor;
  return byDescriptor;
}

bool fails(const std::string& path) {
  FailingCalls& calls = failingCalls();
  if (calls.error == kShortWrite || !calls.fault.strikes(path)) return false;
  errno = calls.error;
  return true;
}

bool fails(int descriptor) {
  return fails(names()[descriptor]);
}

int written = -1;  // the file that was written to last

}  // namespace

FailingCalls& failingCalls() {
  static FailingCalls calls;
  return calls;
}

}  // namespace tamrikon::test

using tamrikon::test::failingCalls;
using tamrikon::test::fails;
using tamrikon::test::names;
using tamrikon::test::written;

// The linker's names for a call and for what stands in its place.
#define TAMRIKON_CALL(result, name, parameters) \
  result __real_##name parameters;              \
  result __wrap_##name parameters

extern "C" {

TAMRIKON_CALL(int, ftruncate, (int descriptor, off_t length)) {
  return fails(descriptor) ? -1 : __real_ftruncate(descriptor, length);
}
// What is reported late has lost some of what was written.
static bool failsLate(int descriptor) {
  if (!fails(descriptor)) return false;
  if (std::exchange(written, -1) != descriptor) return true;
  const int error = errno;
  __real_ftruncate(descriptor, lseek(descriptor, 0, SEEK_END) - 1);
  errno = error;
  return true;
}

TAMRIKON_CALL(int, open, (const char* path, int flags, ...)) {
  va_list more;
  va_start(more, flags);
  const auto mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
  va_end(more);
  if (fails(path)) return -1;
  const int descriptor = __real_open(path, flags, mode);
  names()[descriptor] = path;
  return descriptor;
}

// The file goes by the name of the one that it is to replace.
TAMRIKON_CALL(int, mkostemp, (char* path, int flags)) {
  const std::string replaced = std::string(path).substr(0, std::string(path).rfind(".tamrikon-"));
  if (fails(replaced)) return -1;
  const int descriptor = __real_mkostemp(path, flags);
  names()[descriptor] = replaced;
  return descriptor;
}

// A file is closed whatever is reported.
TAMRIKON_CALL(int, close, (int descriptor)) {
  const bool isFault = failsLate(descriptor);
  const int result = __real_close(descriptor);
  if (isFault) errno = failingCalls().error;
  return isFault ? -1 : result;
}

TAMRIKON_CALL(ssize_t, write, (int descriptor, const void* bytes, size_t count)) {
  static bool isFull = false;
  written = descriptor;
  if (failingCalls().error != tamrikon::test::kShortWrite) {
    return fails(descriptor) ? -1 : __real_write(descriptor, bytes, count);
  }
  if (std::exchange(isFull, false)) {
    errno = ENOSPC;
    return -1;
  }
  isFull = failingCalls().fault.strikes(names()[descriptor]);
  return __real_write(descriptor, bytes, isFull ? count / 2 : count);
}

TAMRIKON_CALL(ssize_t, read, (int descriptor, void* bytes, size_t count)) {
  return fails(descriptor) ? -1 : __real_read(descriptor, bytes, count);
}
TAMRIKON_CALL(ssize_t, pread, (int descriptor, void* bytes, size_t count, off_t offset)) {
  return fails(descriptor) ? -1 : __real_pread(descriptor, bytes, count, offset);
}
// Thousands of runs needn't wait for the disk.
TAMRIKON_CALL(int, fsync, (int descriptor)) {
  return failsLate(descriptor) ? -1 : 0;
}
TAMRIKON_CALL(int, truncate, (const char* path, off_t length)) {
  return fails(path) ? -1 : __real_truncate(path, length);
}
TAMRIKON_CALL(int, fstat, (int descriptor, struct stat* status)) {
  return fails(descriptor) ? -1 : __real_fstat(descriptor, status);
}
TAMRIKON_CALL(int, stat, (const char* path, struct stat* status)) {
  return fails(path) ? -1 : __real_stat(path, status);
}
TAMRIKON_CALL(int, access, (const char* path, int mode)) {
  return fails(path) ? -1 : __real_access(path, mode);
}
TAMRIKON_CALL(int, fchmod, (int descriptor, mode_t mode)) {
  return fails(descriptor) ? -1 : __real_fchmod(descriptor, mode);
}
TAMRIKON_CALL(int, rename, (const char* from, const char* to)) {
  return fails(to) ? -1 : __real_rename(from, to);
}
TAMRIKON_CALL(int, unlink, (const char* path)) {
  return fails(path) ? -1 : __real_unlink(path);
}
TAMRIKON_CALL(int, mkdir, (const char* path, mode_t mode)) {
  return fails(path) ? -1 : __real_mkdir(path, mode);
}

}  // extern "C"
