#include "platform/open_document.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "base/paths.h"

extern char** environ;

namespace tamrikon {
namespace {

/// Whether the opener succeeds, or is still at work after a while, as one that shows the document
/// by itself is.
bool succeeds(pid_t opener) {
  constexpr int kPauses = 60;
  constexpr useconds_t kPause = 50'000;  // microseconds
  for (int n = 0; n < kPauses; ++n) {
    int status = 0;
    const pid_t ended = ::waitpid(opener, &status, WNOHANG);
    if (ended < 0) return false;
    if (ended == opener) return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    ::usleep(kPause);
  }
  return true;
}

}  // namespace

bool openDocument(const std::string& target) {
  std::string path = target;
  if (target.find("://") == std::string::npos) {
    std::error_code ignored;
    path = nativePath(target);
    if (!std::filesystem::exists(path, ignored)) return false;
    // A relative name that begins with "-" would be taken for an option.
    path = std::filesystem::absolute(path, ignored).string();
  }
  std::string program = "xdg-open";
  char* const arguments[] = {program.data(), path.data(), nullptr};
  pid_t opener = 0;
  const int failed = ::posix_spawnp(&opener, program.c_str(), nullptr, nullptr, arguments, environ);
  return failed == 0 && succeeds(opener);
}

}  // namespace tamrikon
