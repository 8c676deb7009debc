#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "base/paths.h"
#include "platform/file_replacement.h"
#include "platform/write_all.h"

namespace tamrikon {
namespace {

constexpr std::string_view kPattern = "XXXXXX";
constexpr std::size_t kLongestName = 255;

/// The mark of the program and of this machine: the lock of another one may not be seen here.
std::string mark() {
  std::array<char, 256> host{};
  ::gethostname(host.data(), host.size() - 1);
  std::uint32_t hash = 0x811C9DC5U;
  for (const char* c = host.data(); *c != '\0'; ++c) {
    hash = (hash ^ static_cast<unsigned char>(*c)) * 0x01000193U;
  }
  char text[32];
  std::snprintf(text, sizeof text, ".tamrikon-%08x-", static_cast<unsigned>(hash));
  return text;
}

bool isReplacement(std::string_view name, std::string_view mark) {
  if (name.size() < mark.size() + kPattern.size()) return false;
  const std::string_view end = name.substr(name.size() - kPattern.size());
  name.remove_suffix(kPattern.size());
  return name.ends_with(mark) &&
         std::all_of(end.begin(), end.end(), [](unsigned char c) { return std::isalnum(c) != 0; });
}

bool lock(int descriptor) {
  return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
}

/// Creates and locks a file beside `path`, whose path is then in `name`; -1 if that fails.
int createReplacement(const std::string& path, std::string& name) {
  constexpr int kTries = 100;
  for (int n = 0; n < kTries; ++n) {
    name = replacementStart(path).append(kPattern);
    const int descriptor = ::mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0) return -1;
    // Until it is locked, another run may take it for a dead one's. Where there are no locks, no
    // run can get one.
    const bool isTaken = !lock(descriptor) && errno == EWOULDBLOCK;
    struct stat status {};
    if (!isTaken && ::lstat(name.c_str(), &status) == 0) return descriptor;
    ::unlink(name.c_str());
    ::close(descriptor);
  }
  errno = EBUSY;
  return -1;
}

/// Writes the new text with the old file's permissions and closes the file; an errno value.
int fill(int descriptor, const std::string& oldPath, std::string_view bytes) {
  struct stat old {};
  const bool hadOld = ::stat(oldPath.c_str(), &old) == 0;
  // A file that nothing can be learnt of would lose its permissions.
  int failure = hadOld || errno == ENOENT ? 0 : errno;
  const mode_t mask = ::umask(0);
  ::umask(mask);
  const mode_t mode = hadOld ? (old.st_mode & 07777) : (0666 & ~mask);
  if (failure == 0 && hadOld && ::access(oldPath.c_str(), W_OK) != 0) failure = errno;
  // A foreign owner can be kept by root alone; for others the file becomes their own.
  if (failure == 0 && hadOld && ::fchown(descriptor, old.st_uid, old.st_gid) != 0) errno = 0;
  if (failure == 0 && ::fchmod(descriptor, mode) != 0) failure = errno;
  if (failure == 0 && !writeAll(descriptor, bytes)) failure = errno;
  if (failure == 0 && ::fsync(descriptor) != 0) failure = errno;
  if (::close(descriptor) != 0 && failure == 0) failure = errno;
  return failure;
}

/// Makes the rename itself last; a file system that can't do so isn't a failure of the save.
void flushFolder(const std::string& path) {
  const std::string folder(folderOf(path));
  const int descriptor =
      ::open(folder.empty() ? "." : (folder + "/").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  (void)::fsync(descriptor);
  ::close(descriptor);
}

void removeIfDead(const std::string& path) {
  const int descriptor = ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return;
  struct stat opened {};
  struct stat named {};
  // By now its writer may have put it in place, and another file may bear the name.
  const bool isDead = lock(descriptor) && ::fstat(descriptor, &opened) == 0 &&
                      ::lstat(path.c_str(), &named) == 0 && S_ISREG(named.st_mode) &&
                      opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
  if (isDead) ::unlink(path.c_str());
  ::close(descriptor);
}

}  // namespace

std::string replacementStart(const std::string& path) {
  const std::string mark = tamrikon::mark();
  const std::size_t nameStart = path.size() - lastName(path).size();
  std::size_t size =
      std::min(path.size(), nameStart + kLongestName - mark.size() - kPattern.size());
  const auto isInside = [&](std::size_t at) {  // of a character in UTF-8
    return at < path.size() && (static_cast<unsigned char>(path[at]) & 0xC0) == 0x80;
  };
  while (size > nameStart && isInside(size)) --size;
  return path.substr(0, size) + mark;
}

int replaceFile(const std::string& path, std::string_view bytes) {
  std::string name;
  const int descriptor = createReplacement(path, name);
  if (descriptor < 0) return errno;
  // close() reports late write errors, but the lock has to last until the end.
  const int holder = ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
  int failure = fill(descriptor, path, bytes);
  if (failure == 0 && ::rename(name.c_str(), path.c_str()) != 0) failure = errno;
  if (failure != 0) ::unlink(name.c_str());
  if (holder >= 0) ::close(holder);
  if (failure == 0) flushFolder(path);
  return failure;
}

void removeDeadReplacements(const std::string& folder) {
  const std::string mark = tamrikon::mark();
  std::error_code failure;
  std::filesystem::directory_iterator entries(folder.empty() ? "." : folder, failure);
  for (; !failure && entries != std::filesystem::directory_iterator(); entries.increment(failure)) {
    const std::string name = entries->path().filename().string();
    if (isReplacement(name, mark)) removeIfDead(entries->path().string());
  }
}

}  // namespace tamrikon
