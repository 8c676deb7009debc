#include "addin/class_factory.h"

#include <new>

#include "addin/connect_object.h"
#include "com/com_ptr.h"

namespace tamrikon {

HRESULT ClassFactory::QueryInterface(REFIID iid, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (iid != IID_IUnknown && iid != IID_IClassFactory) return E_NOINTERFACE;
  *object = static_cast<IClassFactory*>(this);
  AddRef();
  return S_OK;
}

ULONG ClassFactory::AddRef() noexcept {
  return ++references_;
}

ULONG ClassFactory::Release() noexcept {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  const ComPtr<Connect> made(new (std::nothrow) Connect);
  return made ? made->QueryInterface(iid, object) : E_OUTOFMEMORY;
}

HRESULT ClassFactory::LockServer(BOOL lock) noexcept {
  return ServerLock::change(lock != FALSE);
}

}  // namespace tamrikon
