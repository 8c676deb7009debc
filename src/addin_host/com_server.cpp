#include "addin_host/com_server.h"

#include "com/com_ptr.h"

namespace tamrikon {

std::unique_ptr<ComServer> ComServer::load(const std::string& path, std::string& why) {
  std::unique_ptr<ComServer> server(new ComServer);
  server->library_ = DynamicLibrary::load(path, why);
  if (!server->library_) return nullptr;
  const DynamicLibrary& library = *server->library_;
  server->getClassObject_ = library.function<GetClassObject>("DllGetClassObject");
  server->canUnloadNow_ = library.function<Call>("DllCanUnloadNow");
  server->registerServer_ = library.function<Call>("DllRegisterServer");
  if (server->getClassObject_ != nullptr && server->canUnloadNow_ != nullptr &&
      server->registerServer_ != nullptr) {
    return server;
  }
  why = path + ": it is a library, but not one of add-ins";
  return nullptr;
}

HRESULT ComServer::createInstance(REFCLSID clsid, REFIID iid, void** object) const {
  *object = nullptr;
  ComPtr<IClassFactory> factory;
  const HRESULT result = getClassObject_(clsid, IID_IClassFactory, factory.put());
  return FAILED(result) ? result : factory->CreateInstance(nullptr, iid, object);
}

}  // namespace tamrikon
