#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <set>
#include <utility>

#include "base/paths.h"
#include "platform/file_replacement.h"
#include "platform/file_system.h"
#include "platform/write_all.h"

namespace tamrikon {
namespace {

FileError errorOf(int number) {
  switch (number) {
    case 0: return FileError::none;
    case ENOENT: return FileError::fileNotFound;
    case ENOTDIR: return FileError::pathNotFound;
    case EACCES:
    case EPERM:
    case EROFS: return FileError::permissionDenied;
    case ENOSPC:
    case EDQUOT: return FileError::diskFull;
    case EIO: return FileError::deviceIo;
    case ENODEV:
    case ENXIO: return FileError::deviceUnavailable;
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ: return FileError::badFileName;
    default: return FileError::pathFileAccess;
  }
}

/// As errorOf, telling a missing folder on the way from a missing file.
FileError errorOf(int number, const std::string& nativePath) {
  if (number == ENOENT) {
    const std::string folder(folderOf(nativePath));
    struct stat status {};
    if (!folder.empty() && ::stat(folder.c_str(), &status) != 0) return FileError::pathNotFound;
  }
  return errorOf(number);
}

/// A folder that files are opened from.
class KeptFolder {
 public:
  explicit KeptFolder(std::string path)
      : path_(std::move(path)),
        number_(::open(path_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
        outer_(std::exchange(current, this)) {}
  KeptFolder(const KeptFolder&) = delete;
  KeptFolder& operator=(const KeptFolder&) = delete;
  ~KeptFolder() {
    current = outer_;
    if (number_ >= 0) ::close(number_);
  }

  bool isOpen() const { return number_ >= 0; }

  /// As ::open(), by way of the folder that the thread keeps open, if the file is right in it.
  static int open(const std::string& path, int flags) {
    const char* const name = current == nullptr ? nullptr : current->nameIn(path);
    const int number = name == nullptr ? -1 : ::openat(current->number_, name, flags, 0666);
    // A folder that was removed meanwhile may be there again.
    const bool isMissed = name == nullptr || (number < 0 && errno == ENOENT);
    return isMissed ? ::open(path.c_str(), flags, 0666) : number;
  }

 private:
  /// The last name of `path` if the rest is this folder, otherwise null.
  const char* nameIn(const std::string& path) const {
    const bool isIn = path.size() > path_.size() && path.starts_with(path_) &&
                      path.find('/', path_.size()) == std::string::npos;
    return isIn ? path.c_str() + path_.size() : nullptr;
  }

  static thread_local const KeptFolder* current;

  const std::string path_;  // up to and with its last separator
  const int number_;
  const KeptFolder* const outer_;
};

thread_local const KeptFolder* KeptFolder::current = nullptr;

/// A file descriptor that closes itself.
class Descriptor {
 public:
  Descriptor(const std::string& path, int flags) { open(path, flags); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(); }

  void open(const std::string& path, int flags) {
    close();
    // A pipe that nobody is at the other end of isn't waited for, only a lease of another program.
    number_ = KeptFolder::open(path, flags | O_CLOEXEC | O_NONBLOCK);
    const bool isLeased = number_ < 0 && errno == EWOULDBLOCK;
    if (isLeased) number_ = KeptFolder::open(path, flags | O_CLOEXEC);
  }
  bool isOpen() const { return number_ >= 0; }
  int number() const { return number_; }

  /// Whether the close, which can report a late write error, worked.
  bool close() {
    if (number_ < 0) return true;
    const int number = number_;
    number_ = -1;
    return ::close(number) == 0;
  }

 private:
  int number_ = -1;
};

/// No text of people is longer; a file with a hole, or one that the system makes up, may be.
constexpr std::size_t kMaxRead = std::size_t{256} << 20;

bool readAll(int descriptor, std::string& bytes, std::size_t expected) {
  if (expected > kMaxRead) return errno = EFBIG, false;
  bytes.resize(expected + 1);  // one more, so that the end shows without another round
  std::size_t size = 0;
  for (;;) {
    if (size == bytes.size()) bytes.resize(bytes.size() * 2);
    const ssize_t done = ::read(descriptor, bytes.data() + size, bytes.size() - size);
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) return false;
    if (done == 0) break;
    size += static_cast<std::size_t>(done);
    if (size > kMaxRead) return errno = EFBIG, false;
  }
  bytes.resize(size);
  return true;
}

/// Whether a file of `size` bytes has just these.
bool holds(int descriptor, off_t size, std::string_view bytes) {
  if (static_cast<std::size_t>(size) != bytes.size()) return false;
  std::array<char, 1 << 16> buffer;
  off_t at = 0;
  while (at < size) {
    const ssize_t done = ::pread(descriptor, buffer.data(), buffer.size(), at);
    if (done <= 0) return false;
    const auto count = static_cast<std::size_t>(done);
    if (bytes.compare(static_cast<std::size_t>(at), count, buffer.data(), count) != 0) return false;
    at += done;
  }
  return true;
}

class PosixFileSystem final : public FileSystem {
 public:
  FileError read(const std::string& path, std::string& bytes) override {
    bytes.clear();
    const std::string native = checkedPath(path);
    if (native.empty()) return FileError::badFileName;
    Descriptor file(native, O_RDONLY);
    if (!file.isOpen()) return errorOf(errno, native);
    struct stat status {};
    if (::fstat(file.number(), &status) != 0) return errorOf(errno);
    if (!S_ISREG(status.st_mode)) return FileError::pathFileAccess;
    const auto expected = static_cast<std::size_t>(std::max<off_t>(status.st_size, 0));
    if (!readAll(file.number(), bytes, expected)) {
      const int number = errno;
      bytes.clear();
      return errorOf(number);
    }
    return FileError::none;
  }

  FileError write(const std::string& path, std::string_view bytes) override {
    bool ignored = false;
    return writeIfOther(path, bytes, ignored);
  }

  FileError writeIfOther(const std::string& path, std::string_view bytes, bool& changed) override {
    changed = true;
    const std::string native = checkedPath(path);
    if (native.empty()) return FileError::badFileName;
    // Of a new file nothing needs to be asked or compared, and where one is new the next one mostly
    // is.
    const bool triesOld = findsOldFiles_;
    Descriptor file(native, triesOld ? O_RDWR : O_WRONLY | O_CREAT | O_EXCL);
    if (file.isOpen() && !triesOld) {
      return writeAll(file.number(), bytes) && file.close() ? FileError::none : errorOf(errno);
    }
    const bool isOld = file.isOpen() || errno == EEXIST;
    findsOldFiles_ = isOld;
    if (!file.isOpen()) file.open(native, O_RDWR | O_CREAT);
    if (!file.isOpen() && errno == EACCES) file.open(native, O_WRONLY | O_CREAT);
    if (!file.isOpen()) return errorOf(errno, native);
    struct stat status {};
    if (::fstat(file.number(), &status) != 0) return errorOf(errno);
    if (S_ISREG(status.st_mode) && (isOld || status.st_size > 0)) {
      changed = !holds(file.number(), status.st_size, bytes);
      if (!changed) return FileError::none;
      if (::ftruncate(file.number(), 0) != 0) return errorOf(errno);
    }
    if (!writeAll(file.number(), bytes) || !file.close()) return errorOf(errno);
    return FileError::none;
  }

  FileError append(const std::string& path, std::string_view bytes) override {
    const std::string native = checkedPath(path);
    if (native.empty()) return FileError::badFileName;
    Descriptor file(native, O_WRONLY | O_CREAT | O_APPEND);
    if (!file.isOpen()) return errorOf(errno, native);
    const off_t oldLength = ::lseek(file.number(), 0, SEEK_END);
    if (writeAll(file.number(), bytes) && file.close()) return FileError::none;
    const int number = errno;
    // A part that stayed would stand twice after the next try. If even this fails, the device is
    // the one to blame, and its error is reported.
    const bool restored = oldLength >= 0 && ::truncate(native.c_str(), oldLength) == 0;
    return restored ? errorOf(number) : errorOf(errno);
  }

  FileError replaceAtomically(const std::string& path, std::string_view bytes) override {
    std::string native = checkedPath(path);
    if (native.empty()) return FileError::badFileName;
    std::error_code ignored;
    const std::filesystem::path target = std::filesystem::canonical(native, ignored);
    if (!ignored) native = target.string();
    cleanOnce(std::string(folderOf(native)));
    return errorOf(replaceFile(native, bytes), native);
  }

  FileError remove(const std::string& path) override {
    const std::string native = checkedPath(path);
    if (native.empty()) return FileError::badFileName;
    return ::unlink(native.c_str()) == 0 ? FileError::none : errorOf(errno, native);
  }

  FileError createFolder(const std::string& path) override {
    const std::string native = checkedPath(path);
    if (native.empty()) return FileError::badFileName;
    return ::mkdir(native.c_str(), 0777) == 0 ? FileError::none : errorOf(errno, native);
  }

  FileError createFolders(const std::string& path) override {
    const std::string native = checkedPath(path);
    if (native.empty()) return FileError::badFileName;
    std::error_code failure;
    std::filesystem::create_directories(native, failure);
    return errorOf(failure.value());
  }

  bool isFile(const std::string& path) override {
    struct stat status {};
    return ::stat(checkedPath(path).c_str(), &status) == 0 && S_ISREG(status.st_mode);
  }

  bool isFolder(const std::string& path) override {
    struct stat status {};
    return ::stat(checkedPath(path).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
  }

  std::vector<std::string> list(const std::string& folder) override {
    std::vector<std::string> names;
    std::error_code failure;
    const std::string native = nativePath(folder);
    std::filesystem::directory_iterator entries(native.empty() ? "." : native, failure);
    for (; !failure && entries != std::filesystem::directory_iterator();
         entries.increment(failure)) {
      names.push_back(entries->path().filename().string());
    }
    return names;
  }

  std::shared_ptr<const void> keepOpen(const std::string& folder) override {
    const std::string native = checkedPath(folder);
    if (native.empty()) return nullptr;
    auto kept = std::make_shared<const KeptFolder>(joinPath(native, ""));
    return kept->isOpen() ? kept : nullptr;
  }

  std::string absolute(const std::string& path) override {
    std::error_code failure;
    const auto result = std::filesystem::absolute(nativePath(path), failure);
    return failure ? path : result.lexically_normal().string();
  }

 private:
  // Whether the last write() met a file. A guess about the next one, whichever thread makes it.
  std::atomic<bool> findsOldFiles_ = false;

  /// The native path, or empty if it can't name a file: the system would stop reading at a NUL.
  static std::string checkedPath(const std::string& path) {
    return path.find('\0') == std::string::npos ? nativePath(path) : std::string();
  }

  /// What killed runs have left is removed when the first file of a folder is replaced.
  void cleanOnce(const std::string& folder) {
    {
      const std::lock_guard guard(mutex_);
      if (!cleanFolders_.insert(folder).second) return;
    }
    removeDeadReplacements(folder.empty() || folder.ends_with('/') ? folder : folder + '/');
  }

  std::mutex mutex_;
  std::set<std::string> cleanFolders_;
};

}  // namespace

FileSystem& nativeFileSystem() {
  static PosixFileSystem files;
  return files;
}

}  // namespace tamrikon
