// Processes and the locale: what running a template's external programs asks of the platform. The
// operations bear the names of the Windows services that they stand for.
#pragma once

#include <string>
#include <vector>

namespace tamrikon {

struct ProcessHandle {
  long process = 0;
};

class ProcessServices {
 public:
  virtual ~ProcessServices() = default;

  /// The value of an environment variable, or empty.
  virtual std::string GetEnvironmentVariable(const std::string& name) = 0;

  /// Starts `application` with the words of `commandLine`, whose first is the program's name, in
  /// the current folder and environment, handles inherited, apart from the keys of the terminal:
  /// Ctrl+C doesn't reach it. With no application, the system's search path finds the program by
  /// that name. On failure `error` is the system's error number.
  virtual bool CreateProcess(const std::string& application,
                             const std::vector<std::string>& commandLine, ProcessHandle& handle,
                             int& error) = 0;

  /// Waits for the process to end, for so many milliseconds at most. Whether it has ended.
  virtual bool WaitForSingleObject(const ProcessHandle& handle, int milliseconds) = 0;

  /// Ends the process and all that it started: they are asked to, and killed if that takes more
  /// than a second. The end shows in WaitForSingleObject.
  virtual void TerminateProcess(const ProcessHandle& handle) = 0;

  /// To be called once the process has ended.
  virtual void CloseHandle(ProcessHandle& handle) = 0;

  virtual int GetThreadLocale() = 0;

  /// The text of a locale's property; `type` 4100 is the number of its ANSI code page. May hold
  /// NUL characters at its end.
  virtual std::string GetLocaleInfoA(int locale, int type) = 0;

  virtual void Sleep(int milliseconds) = 0;
};

/// The machine's own. It has no state.
ProcessServices& nativeProcessServices();

}  // namespace tamrikon
