#include "platform/data_folder.h"

#include <string_view>

#include "base/paths.h"
#include "platform/file_system.h"
#include "platform/process.h"
#include "platform/program_path.h"

namespace tamrikon {
namespace {

/// `prefix` is the folder that programs, libraries and data are installed in.
std::string dataBelow(std::string_view prefix) {
  const std::string home = nativeProcessServices().GetEnvironmentVariable("TAMRIKON_HOME");
  if (!home.empty()) {
    const std::string absolute = nativeFileSystem().absolute(home);
    return std::string(withoutTrailingSeparator(absolute));
  }
  if (prefix == TAMRIKON_BUILD) return TAMRIKON_SOURCE_DATA;
  return joinPath(joinPath(prefix, "share"), "tamrikon");
}

}  // namespace

std::string dataFolder() {
  return dataBelow(folderOf(programFolder()));
}

std::string dataFolderOf(const std::string& libraryFolder) {
  return dataBelow(folderOf(folderOf(libraryFolder)));
}

}  // namespace tamrikon
