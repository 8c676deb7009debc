// A library whose classes others make objects of.
#pragma once

#include <memory>
#include <string>

#include "com/com.h"
#include "platform/dynamic_library.h"

namespace tamrikon {

class ComServer {
 public:
  /// Null if the library can't be loaded, or lacks one of the functions that it must have; `why` is
  /// then one line that names the file.
  static std::unique_ptr<ComServer> load(const std::string& path, std::string& why);

  /// Makes an object and asks it for an interface.
  HRESULT createInstance(REFCLSID clsid, REFIID iid, void** object) const;

  /// Whether it may be dropped: nothing of it is in use.
  bool canUnload() const { return canUnloadNow_() == S_OK; }

  HRESULT registerServer() const { return registerServer_(); }

 private:
  using Call = HRESULT STDMETHODCALLTYPE();
  using GetClassObject = HRESULT STDMETHODCALLTYPE(REFCLSID, REFIID, void**);

  ComServer() = default;

  std::unique_ptr<DynamicLibrary> library_;
  GetClassObject* getClassObject_ = nullptr;
  Call* canUnloadNow_ = nullptr;
  Call* registerServer_ = nullptr;
};

}  // namespace tamrikon
