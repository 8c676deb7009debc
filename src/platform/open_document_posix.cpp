#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "base/paths.h"
#include "platform/open_document.h"

extern char** environ;

namespace tamrikon {
namespace {

/// Starts `program` in a session of its own, so that no Ctrl+C on our terminal ends what it starts.
/// 0 if that fails.
pid_t spawn(std::string program, std::string argument) {
  char* const arguments[] = {program.data(), argument.data(), nullptr};
  posix_spawnattr_t attributes;
  if (::posix_spawnattr_init(&attributes) != 0) return 0;
  ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
  pid_t process = 0;
  const int failed =
      ::posix_spawnp(&process, program.c_str(), nullptr, &attributes, arguments, environ);
  ::posix_spawnattr_destroy(&attributes);
  return failed == 0 ? process : 0;
}

}  // namespace

std::optional<DocumentOpener> DocumentOpener::start(const std::string& target) {
  std::string path = target;
  if (target.find("://") == std::string::npos) {
    std::error_code ignored;
    path = nativePath(target);
    if (!std::filesystem::exists(path, ignored)) return std::nullopt;
    // A relative name that begins with "-" would be taken for an option.
    path = std::filesystem::absolute(path, ignored).string();
  }
  const pid_t process = spawn("xdg-open", path);
  if (process == 0) return std::nullopt;
  return DocumentOpener(process);
}

DocumentOpener::State DocumentOpener::poll() {
  if (state_ != State::atWork) return state_;
  int status = 0;
  const pid_t ended = ::waitpid(static_cast<pid_t>(process_), &status, WNOHANG);
  if (ended == 0 || (ended < 0 && errno == EINTR)) return state_;
  const bool works = ended > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
  return state_ = works ? State::opened : State::failed;
}

bool openDocument(const std::string& target) {
  constexpr int kPauses = 60;
  constexpr useconds_t kPause = 50'000;  // microseconds
  std::optional<DocumentOpener> opener = DocumentOpener::start(target);
  for (int n = 0; opener && n < kPauses; ++n) {
    if (opener->poll() != DocumentOpener::State::atWork) break;
    ::usleep(kPause);
  }
  return opener && opener->poll() != DocumentOpener::State::failed;
}

}  // namespace tamrikon
