#include "cli/patch_folder.h"

#include <algorithm>

#include "base/paths.h"

namespace tamrikon {

PatchFolder::PatchFolder(FileSystem& files, const std::vector<std::string>& paths)
    : files_(files), folder_(joinPath(withoutTrailingSeparator(files.absolute(".")), "")) {
  const auto holdsAll = [&] {
    return std::all_of(paths.begin(), paths.end(), [&](const std::string& path) {
      return files_.absolute(path).starts_with(folder_);
    });
  };
  while (!holdsAll()) {
    const std::string_view inner = withoutTrailingSeparator(folder_);
    const std::size_t size = inner.size() - lastName(inner).size();
    if (size == 0) break;  // it was the root
    folder_.resize(size);
    fromHere_ = fromHere_ == "." ? ".." : fromHere_ + "/..";
  }
}

std::string PatchFolder::nameOf(const std::string& path) const {
  return files_.absolute(path).substr(folder_.size());
}

}  // namespace tamrikon
