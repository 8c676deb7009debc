// Libraries that are loaded while the program runs.
#pragma once

#include <memory>
#include <string>

namespace tamrikon {

class DynamicLibrary {
 public:
  /// Null if it can't be loaded; `why` then says so in one line that names the file.
  static std::unique_ptr<DynamicLibrary> load(const std::string& path, std::string& why);

  /// Unloads it, unless it is loaded elsewhere too. Nothing of it may be in use any more.
  ~DynamicLibrary();
  DynamicLibrary(const DynamicLibrary&) = delete;
  DynamicLibrary& operator=(const DynamicLibrary&) = delete;

  /// An exported function; null if there is none of that name.
  template <typename Function>
  Function* function(const char* name) const {
    return reinterpret_cast<Function*>(symbol(name));
  }

 private:
  explicit DynamicLibrary(void* handle) : handle_(handle) {}
  void* symbol(const char* name) const;

  void* handle_;
};

/// The absolute path of the library or program that `code`, the address of a function, is in;
/// empty if the system doesn't tell.
std::string libraryOf(const void* code);

}  // namespace tamrikon
