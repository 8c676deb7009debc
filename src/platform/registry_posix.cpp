// The registry as a file in the user's configuration folder, where the system has none.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <functional>

#include "base/paths.h"
#include "platform/file_system.h"
#include "platform/registry.h"
#include "platform/registry_text.h"
#include "platform/user_folders.h"

namespace tamrikon {
namespace {

constexpr auto kFolder = "tamrikon";
constexpr auto kFile = "registry.txt";

/// Keeps other programs from changing the registry meanwhile. The file that is locked is another
/// one, as that of the registry is replaced by each change; it stays, since a file that is removed
/// could be locked twice.
class Lock {
 public:
  explicit Lock(const std::string& path)
      : descriptor_(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)) {
    constexpr int kTries = 300;
    constexpr useconds_t kPause = 10'000;  // microseconds
    for (int n = 0; descriptor_ >= 0 && n < kTries; ++n) {
      isHeld_ = ::flock(descriptor_, LOCK_EX | LOCK_NB) == 0;
      if (isHeld_ || (errno != EWOULDBLOCK && errno != EINTR)) return;
      ::usleep(kPause);
    }
  }
  ~Lock() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

  bool isHeld() const { return isHeld_; }

 private:
  int descriptor_;
  bool isHeld_ = false;
};

/// Keeps what stands in the way of a registry under a name of its own.
FileError keepUnusable(const std::string& path, const std::string& bytes) {
  FileSystem& files = nativeFileSystem();
  std::string backup = path + ".bak";
  for (int n = 2; files.isFile(backup) || files.isFolder(backup); ++n) {
    backup = path + ".bak" + std::to_string(n);
  }
  return files.replaceAtomically(backup, bytes);
}

class FileRegistry final : public Registry {
 public:
  std::optional<RegistryValue> get(const std::string& key, const std::string& name) const override {
    return read().get(key, name);
  }

  std::vector<std::string> subkeys(const std::string& key) const override {
    return read().subkeys(key);
  }

  FileError put(const std::vector<RegistryEntry>& entries) override {
    if (!std::all_of(entries.begin(), entries.end(), RegistryText::canHold)) {
      return FileError::typeMismatch;
    }
    return change([&](RegistryText& text) {
      for (const RegistryEntry& entry : entries) text.put(entry);
    });
  }

  FileError remove(const std::vector<std::string>& keys) override {
    return change([&](RegistryText& text) {
      for (const std::string& key : keys) text.remove(key);
    });
  }

 private:
  static RegistryText read() {
    std::string bytes;
    if (nativeFileSystem().read(userRegistryPlace(), bytes) != FileError::none) return {};
    return RegistryText::parse(bytes).value_or(RegistryText());
  }

  static FileError change(const std::function<void(RegistryText&)>& edit) {
    FileSystem& files = nativeFileSystem();
    const std::string path = userRegistryPlace();
    if (path.empty()) return FileError::pathNotFound;
    const FileError noFolder = files.createFolders(std::string(folderOf(path)));
    if (noFolder != FileError::none) return noFolder;
    const Lock lock(path + ".lock");
    if (!lock.isHeld()) return FileError::permissionDenied;
    std::string old;
    const FileError error = files.read(path, old);
    if (error != FileError::none && error != FileError::fileNotFound) return error;
    std::optional<RegistryText> text = RegistryText::parse(old);
    if (!text && !old.empty()) {
      const FileError notKept = keepUnusable(path, old);
      if (notKept != FileError::none) return notKept;
    }
    if (!text) text.emplace();
    edit(*text);
    const std::string bytes = text->bytes();
    return bytes == old ? FileError::none : files.replaceAtomically(path, bytes);
  }
};

}  // namespace

std::string userRegistryPlace() {
  const std::string folder = userConfigFolder();
  return folder.empty() ? folder : joinPath(joinPath(folder, kFolder), kFile);
}

Registry& userRegistry() {
  static FileRegistry registry;
  return registry;
}

}  // namespace tamrikon
