// The host as add-ins get it.
#pragma once

#include <atomic>

#include "com/add_in_interfaces.h"

namespace tamrikon {

class HostApplication final : public IAddInApplication {
 public:
  /// The caller has the first reference.
  explicit HostApplication(AddInHost& host) : host_(&host) {}

  /// The host goes: whoever still holds this object finds none any more.
  void forgetHost() { host_ = nullptr; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;
  HRESULT STDMETHODCALLTYPE get_Host(AddInHost** host) noexcept override;

 private:
  AddInHost* host_;
  std::atomic<ULONG> references_ = 1;
};

}  // namespace tamrikon
