#include "cli/path_from_here.h"

#include "base/paths.h"

namespace tamrikon {

std::string pathFromHere(FileSystem& files, const std::string& path) {
  const std::string here =
      joinPath(withoutTrailingSeparator(files.absolute(".")), std::string_view());
  std::string result(withoutTrailingSeparator(files.absolute(path)));
  if (result + separatorOf(here) == here) return ".";
  if (result.starts_with(here)) result.erase(0, here.size());
  return result;
}

}  // namespace tamrikon
