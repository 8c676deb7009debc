#include <spawn.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "platform/process.h"

extern char** environ;

namespace tamrikon {
namespace {

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
    pid_t process = 0;
    error = application.empty() ? ::posix_spawnp(&process, arguments[0], nullptr, nullptr,
                                                 arguments.data(), environ)
                                : ::posix_spawn(&process, application.c_str(), nullptr, nullptr,
                                                arguments.data(), environ);
    handle.process = process;
    return error == 0;
  }

  void WaitForSingleObject(const ProcessHandle& handle) override {
    int status = 0;
    while (::waitpid(static_cast<pid_t>(handle.process), &status, 0) < 0 && errno == EINTR) {
    }
  }

  // A child that was waited for leaves nothing to close here.
  void CloseHandle(ProcessHandle& handle) override { handle.process = 0; }

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
