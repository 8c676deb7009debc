#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "platform/interrupt.h"
#include "platform/process.h"

extern char** environ;

namespace tamrikon {
namespace {

/// Keeps signals back that end this process: its child must be known by then.
class HeldSignals {
 public:
  HeldSignals() {
    sigset_t held;
    ::sigfillset(&held);
    ::pthread_sigmask(SIG_SETMASK, &held, &before_);
  }
  ~HeldSignals() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;

  const sigset_t& before() const { return before_; }

 private:
  sigset_t before_;
};

/// The mark of a process that leads a session of its own. There it has no terminal that would send
/// it Ctrl+C, or stop it for reading one in the background.
class SessionOfItsOwn {
 public:
  explicit SessionOfItsOwn(const sigset_t& mask) {
    ::posix_spawnattr_init(&attributes_);
    ::posix_spawnattr_setsigmask(&attributes_, &mask);
    ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK);
  }
  ~SessionOfItsOwn() { ::posix_spawnattr_destroy(&attributes_); }
  SessionOfItsOwn(const SessionOfItsOwn&) = delete;
  SessionOfItsOwn& operator=(const SessionOfItsOwn&) = delete;

  const posix_spawnattr_t* get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_;
};

/// A process that has ended keeps its number, and with it that of its group, until CloseHandle.
bool hasEnded(const ProcessHandle& handle) {
  siginfo_t info = {};
  const int failed =
      ::waitid(P_PID, static_cast<id_t>(handle.process), &info, WEXITED | WNOHANG | WNOWAIT);
  return failed != 0 || info.si_pid != 0;
}

class PosixProcessServices final : public ProcessServices {
 public:
  std::string GetEnvironmentVariable(const std::string& name) override {
    const char* value = std::getenv(name.c_str());
    return value == nullptr ? std::string() : value;
  }

  bool CreateProcess(const std::string& application, const std::vector<std::string>& commandLine,
                     ProcessHandle& handle, int& error) override {
    std::vector<std::string> words = commandLine;
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const HeldSignals signals;
    const SessionOfItsOwn attributes(signals.before());
    pid_t process = 0;
    error = application.empty() ? ::posix_spawnp(&process, arguments[0], nullptr, attributes.get(),
                                                 arguments.data(), environ)
                                : ::posix_spawn(&process, application.c_str(), nullptr,
                                                attributes.get(), arguments.data(), environ);
    if (error != 0) return false;
    handle.process = process;
    endWithThisProcess(handle.process);
    return true;
  }

  bool WaitForSingleObject(const ProcessHandle& handle, int milliseconds) override {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    // Most programs end at once.
    for (Clock::duration pause = std::chrono::milliseconds(1); !hasEnded(handle); pause *= 2) {
      const auto left = end - Clock::now();
      if (left <= Clock::duration::zero()) return false;
      std::this_thread::sleep_for(std::min(pause, left));
    }
    return true;
  }

  void TerminateProcess(const ProcessHandle& handle) override {
    constexpr int kPatience = 1000;  // milliseconds
    const auto group = static_cast<pid_t>(handle.process);
    ::kill(-group, SIGTERM);
    WaitForSingleObject(handle, kPatience);
    ::kill(-group, SIGKILL);
  }

  void CloseHandle(ProcessHandle& handle) override {
    endWithThisProcess(0);
    ::waitpid(static_cast<pid_t>(handle.process), nullptr, WNOHANG);
    handle.process = 0;
  }

  int GetThreadLocale() override { return 0; }

  // Texts of the system are UTF-8 here whatever the locale is.
  std::string GetLocaleInfoA(int, int) override { return std::string("65001\0", 6); }

  void Sleep(int milliseconds) override {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
  }
};

}  // namespace

ProcessServices& nativeProcessServices() {
  static PosixProcessServices services;
  return services;
}

}  // namespace tamrikon
