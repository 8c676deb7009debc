#include "addin_host/host_application.h"

namespace tamrikon {

HRESULT HostApplication::QueryInterface(REFIID iid, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (iid != IID_IUnknown && iid != IID_IAddInApplication) return E_NOINTERFACE;
  *object = static_cast<IAddInApplication*>(this);
  AddRef();
  return S_OK;
}

ULONG HostApplication::AddRef() noexcept {
  return ++references_;
}

ULONG HostApplication::Release() noexcept {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT HostApplication::get_Host(AddInHost** host) noexcept {
  if (host == nullptr) return E_POINTER;
  *host = host_;
  return host_ == nullptr ? E_FAIL : S_OK;
}

}  // namespace tamrikon
