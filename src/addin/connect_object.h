// The component's class: the add-in as its host sees it.
#pragma once

#include <atomic>
#include <memory>

#include "addin/server_lock.h"
#include "com/add_in_interfaces.h"

namespace tamrikon {

/// While it is connected, it holds a session with the host and the object `connect`, which does the
/// work; both stay until an operation of theirs that runs meanwhile has come to its end. Released
/// while it is connected, it disconnects, as from a host that shuts down.
class Connect final : public IAddIn {
 public:
  /// The caller has the first reference.
  Connect() noexcept;
  ~Connect();

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;

  /// E_UNEXPECTED if it is connected already, E_NOINTERFACE if it can't work with `application`.
  HRESULT STDMETHODCALLTYPE OnConnection(IUnknown* application, vbext_ConnectMode mode,
                                         IUnknown* addInInst, SAFEARRAY** custom) noexcept override;

  /// E_UNEXPECTED if it isn't connected.
  HRESULT STDMETHODCALLTYPE OnDisconnection(vbext_RemoveMode mode,
                                            SAFEARRAY** custom) noexcept override;

 private:
  struct Connection;

  ServerLock inUse_;
  std::atomic<ULONG> references_ = 1;
  std::shared_ptr<Connection> connection_;
};

}  // namespace tamrikon
