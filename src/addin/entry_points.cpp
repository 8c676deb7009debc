// The four functions that the library shows the world.
#include <new>

#include "addin/class_factory.h"
#include "addin/registration.h"
#include "com/com_ptr.h"
#include "com/component.h"

#ifndef _WIN32
#define STDAPI extern "C" __attribute__((visibility("default"))) tamrikon::HRESULT
#endif

using namespace tamrikon;

// Their names stand in exports.map as well.

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (clsid != CLSID_Connect) return CLASS_E_CLASSNOTAVAILABLE;
  const ComPtr<ClassFactory> factory(new (std::nothrow) ClassFactory);
  return factory ? factory->QueryInterface(iid, object) : E_OUTOFMEMORY;
}

STDAPI DllCanUnloadNow() {
  return ServerLock::isFree() ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
  try {
    const FileError error = registerComponent(userRegistry(), componentPath());
    return error == FileError::none ? S_OK : SELFREG_E_CLASS;
  } catch (...) {
    return E_FAIL;
  }
}

STDAPI DllUnregisterServer() {
  try {
    return unregisterComponent(userRegistry()) == FileError::none ? S_OK : SELFREG_E_CLASS;
  } catch (...) {
    return E_FAIL;
  }
}
