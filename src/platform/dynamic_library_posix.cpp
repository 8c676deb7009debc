#include <dlfcn.h>

#include "platform/dynamic_library.h"
#include "platform/file_system.h"

namespace tamrikon {

std::unique_ptr<DynamicLibrary> DynamicLibrary::load(const std::string& path, std::string& why) {
  why = path + ": there is no such file";
  if (!nativeFileSystem().isFile(path)) return nullptr;
  // A mere name would be looked for in the folders of the system.
  const std::string absolute = nativeFileSystem().absolute(path);
  void* handle = ::dlopen(absolute.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle != nullptr) return std::unique_ptr<DynamicLibrary>(new DynamicLibrary(handle));
  const char* reason = ::dlerror();
  why = reason == nullptr ? "it is no library" : reason;
  if (why.find(absolute) == std::string::npos) why = absolute + ": " + why;
  return nullptr;
}

DynamicLibrary::~DynamicLibrary() {
  ::dlclose(handle_);
}

void* DynamicLibrary::symbol(const char* name) const {
  return ::dlsym(handle_, name);
}

std::string libraryOf(const void* code) {
  Dl_info info{};
  if (::dladdr(code, &info) == 0 || info.dli_fname == nullptr) return {};
  return nativeFileSystem().absolute(info.dli_fname);
}

}  // namespace tamrikon
