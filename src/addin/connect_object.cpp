#include "addin/connect_object.h"

#include <new>
#include <utility>

#include "addin/registration.h"
#include "base/paths.h"
#include "com/com_ptr.h"
#include "compiler/session.h"
#include "compiler/store.h"
#include "connect/connect.h"
#include "dialogs/file_error_dialog.h"
#include "ide/add_in_host.h"
#include "platform/data_folder.h"
#include "platform/user_settings.h"

namespace tamrikon {
namespace {

/// What `work` does may fail in any way; the host hears of it by the result alone.
template <typename Work>
HRESULT guarded(Work&& work) noexcept {
  try {
    return work();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

}  // namespace

struct Connect::Connection {
  Connection(ComPtr<IAddInApplication> theApplication, AddInHost& theHost)
      : application(std::move(theApplication)),
        host(theHost),
        fileErrors(host.toolkit()),
        session(fileErrors, nativeFileSystem(), nativeProcessServices(),
                dataFolderOf(std::string(folderOf(componentPath())))),
        addIn(host.toolkit(), session, host, nativeUserSettings()) {
    addIn.code = std::make_shared<ServerLock>();
    addIn.progressDlg.run.showsPrograms = true;
  }

  ComPtr<IAddInApplication> application;
  AddInHost& host;
  FileErrorDialog fileErrors;
  Session session;
  connect addIn;
};

Connect::Connect() noexcept = default;

Connect::~Connect() {
  if (connection_) OnDisconnection(vbext_dm_HostShutdown, nullptr);
}

HRESULT Connect::QueryInterface(REFIID iid, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (iid != IID_IUnknown && iid != IID_IAddIn) return E_NOINTERFACE;
  *object = static_cast<IAddIn*>(this);
  AddRef();
  return S_OK;
}

ULONG Connect::AddRef() noexcept {
  return ++references_;
}

ULONG Connect::Release() noexcept {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT Connect::OnConnection(IUnknown* application, vbext_ConnectMode mode, IUnknown*,
                              SAFEARRAY**) noexcept {
  if (application == nullptr) return E_POINTER;
  if (connection_) return E_UNEXPECTED;
  if (mode < vbext_cm_AfterStartup || mode > vbext_cm_External) return E_INVALIDARG;
  return guarded([&] {
    ComPtr<IAddInApplication> known;
    AddInHost* host = nullptr;
    HRESULT result = application->QueryInterface(IID_IAddInApplication, known.put());
    if (SUCCEEDED(result)) result = known->get_Host(&host);
    if (FAILED(result)) return result;
    const auto connection = std::make_shared<Connection>(std::move(known), *host);
    connection->addIn.owner = connection;
    connection_ = connection;
    connection->addIn.AddinInstance_OnConnection(host->application(),
                                                 static_cast<ConnectMode>(mode));
    return S_OK;
  });
}

HRESULT Connect::OnDisconnection(vbext_RemoveMode mode, SAFEARRAY**) noexcept {
  const std::shared_ptr<Connection> connection = std::exchange(connection_, nullptr);
  if (!connection) return E_UNEXPECTED;
  return guarded([&] {
    connection->addIn.AddinInstance_OnDisconnection(static_cast<RemoveMode>(mode));
    return S_OK;
  });
}

}  // namespace tamrikon
