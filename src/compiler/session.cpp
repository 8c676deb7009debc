#include "compiler/session.h"

#include <utility>

#include "compiler/store.h"

namespace tamrikon {

Session::Session(FileErrorReporter& errorReporter, FileSystem& fileSystem,
                 ProcessServices& processServices, std::string dataFolder)
    : fileErrors(errorReporter),
      processes(processServices),
      addInFolder(std::move(dataFolder)),
      files(fileSystem, errorReporter),
      settingsFile(settings, addInFolder, files) {}

Session::~Session() = default;

void Session::loadProjectSettings(VBE& ide) {
  if (codePageOf) files.setCodePage(codePageOf(ide.ActiveVBProject()));
  settingsFile.loadProjectSettings(ide);
}

}  // namespace tamrikon
