// Makes the objects of the component's one class.
#pragma once

#include <atomic>

#include "addin/server_lock.h"
#include "com/com.h"

namespace tamrikon {

class ClassFactory final : public IClassFactory {
 public:
  /// The caller has the first reference.
  ClassFactory() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid,
                                           void** object) noexcept override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;

 private:
  ServerLock inUse_;
  std::atomic<ULONG> references_ = 1;
};

}  // namespace tamrikon
