#include "addin_host/add_ins.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "base/case_folding.h"

namespace tamrikon {
namespace {

std::string reasonOf(HRESULT result) {
  if (result == E_NOINTERFACE || result == CLASS_E_CLASSNOTAVAILABLE) {
    return "it was made for another program, or another version of this one";
  }
  char text[11];
  std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(result));
  return std::string("it failed with ") + text;
}

std::string cannotLoad(const std::string& progId, const std::string& why) {
  return "The add-in " + progId + " cannot be loaded. " + why;
}

}  // namespace

AddIns::AddIns(AddInHost& host, Registry& registry)
    : registry_(registry), application_(new HostApplication(host)) {}

AddIns::~AddIns() {
  while (!connected_.empty()) disconnect(connected_.back().progId, vbext_dm_HostShutdown);
  application_->forgetHost();
  dropServer(nullptr);
  // Code that is still in use must stay.
  for (std::unique_ptr<ComServer>& server : inUse_) static_cast<void>(server.release());
}

bool AddIns::isConnected(const std::string& progId) const {
  return std::any_of(connected_.begin(), connected_.end(), [&](const Connected& entry) {
    return equalIgnoringCase(entry.progId, progId);
  });
}

std::optional<std::string> AddIns::connect(const std::string& progId, vbext_ConnectMode mode) {
  if (isConnected(progId)) return std::nullopt;
  const std::optional<RegisteredClass> known = registeredClass(registry_, progId);
  if (!known) return cannotLoad(progId, "It is not registered with a library.");
  std::string why;
  std::unique_ptr<ComServer> server = ComServer::load(known->library, why);
  if (!server) return cannotLoad(progId, why);
  ComPtr<IAddIn> addIn;
  HRESULT result = server->createInstance(known->clsid, IID_IAddIn, addIn.put());
  if (FAILED(result)) {
    dropServer(std::move(server));
    return cannotLoad(progId, known->library + ": " + reasonOf(result));
  }
  addIn->AddRef();
  // Entered first, as it may show dialogs while it is being connected, and be disconnected then.
  connected_.push_back({progId, std::move(server), ComPtr<IAddIn>(addIn.get())});
  result = addIn->OnConnection(application_.get(), mode, nullptr, nullptr);
  if (SUCCEEDED(result)) return std::nullopt;
  addIn.reset();
  if (std::optional<Connected> failed = take(progId)) drop(std::move(*failed));
  return cannotLoad(progId, known->library + ": " + reasonOf(result));
}

std::optional<AddIns::Connected> AddIns::take(const std::string& progId) {
  const auto found =
      std::find_if(connected_.begin(), connected_.end(),
                   [&](const Connected& entry) { return equalIgnoringCase(entry.progId, progId); });
  if (found == connected_.end()) return std::nullopt;
  Connected entry = std::move(*found);
  connected_.erase(found);
  return entry;
}

void AddIns::disconnect(const std::string& progId, vbext_RemoveMode mode) {
  std::optional<Connected> entry = take(progId);
  if (!entry) return;
  entry->addIn->OnDisconnection(mode, nullptr);
  drop(std::move(*entry));
}

void AddIns::drop(Connected entry) {
  entry.addIn.reset();
  dropServer(std::move(entry.server));
}

/// Drops a server, and those that couldn't be dropped before, as far as they are free.
void AddIns::dropServer(std::unique_ptr<ComServer> server) {
  if (server) inUse_.push_back(std::move(server));
  inUse_.erase(std::remove_if(inUse_.begin(), inUse_.end(),
                              [](const auto& kept) { return kept->canUnload(); }),
               inUse_.end());
}

std::vector<std::string> AddIns::connectOnStartup() {
  std::vector<std::string> failures;
  for (const RegisteredAddIn& addIn : registered()) {
    if (!addIn.loadsOnStartup) continue;
    std::optional<std::string> failure = connect(addIn.progId, vbext_cm_Startup);
    if (failure) failures.push_back(std::move(*failure));
  }
  return failures;
}

std::optional<std::string> AddIns::setLoadsOnStartup(const std::string& progId, bool onStartup) {
  const FileError error = setLoadBehavior(registry_, progId, isConnected(progId), onStartup);
  if (error == FileError::none) return std::nullopt;
  return "It cannot be kept whether the add-in " + progId +
         " is loaded on start-up: " + userRegistryPlace() + " cannot be written.";
}

}  // namespace tamrikon
