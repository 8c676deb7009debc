#include "compiler/session.h"

#include <utility>

#include "compiler/store.h"

namespace tamrikon {

Session::Session(UserInterface& userInterface, FileSystem& fileSystem,
                 ProcessServices& processServices, std::string dataFolder)
    : ui(userInterface),
      processes(processServices),
      addInFolder(std::move(dataFolder)),
      log(userInterface),
      fileErrors(userInterface, cancelRequested),
      files(fileSystem, fileErrors),
      settingsFile(settings, addInFolder, files) {}

Session::~Session() = default;

}  // namespace tamrikon
