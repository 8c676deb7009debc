#include "platform/data_folder.h"

#include "base/paths.h"
#include "platform/file_system.h"
#include "platform/process.h"
#include "platform/program_path.h"

namespace tamrikon {

std::string dataFolder() {
  const std::string home = nativeProcessServices().GetEnvironmentVariable("TAMRIKON_HOME");
  if (!home.empty()) {
    const std::string absolute = nativeFileSystem().absolute(home);
    return std::string(withoutTrailingSeparator(absolute));
  }
  const std::string programs = programFolder();
  if (programs == TAMRIKON_BUILD_BIN) return TAMRIKON_SOURCE_DATA;
  return joinPath(joinPath(folderOf(programs), "share"), "tamrikon");
}

}  // namespace tamrikon
