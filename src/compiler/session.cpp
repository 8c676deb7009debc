#include "compiler/session.h"

#include <utility>

#include "compiler/store.h"

namespace tamrikon {

Session::Session(Toolkit& dialogToolkit, FileSystem& fileSystem, ProcessServices& processServices,
                 std::string dataFolder)
    : toolkit(dialogToolkit),
      processes(processServices),
      addInFolder(std::move(dataFolder)),
      progressDlg(*this),
      log(progressDlg),
      fileErrors(dialogToolkit, cancelRequested),
      files(fileSystem, fileErrors),
      settingsFile(settings, addInFolder, files) {}

Session::~Session() = default;

void Session::loadProjectSettings(VBE& ide) {
  if (codePageOf) files.setCodePage(codePageOf(ide.ActiveVBProject()));
  settingsFile.loadProjectSettings(ide);
}

}  // namespace tamrikon
