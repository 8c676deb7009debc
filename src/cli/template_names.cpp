#include "cli/template_names.h"

#include <algorithm>

#include "base/case_folding.h"
#include "base/paths.h"

namespace tamrikon {

std::vector<std::string> templateNames(FileSystem& files, const std::string& folder) {
  std::vector<std::string> names = files.list(folder);
  std::erase_if(names, [&](const std::string& name) {
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos || !equalIgnoringCase(name.substr(dot), ".tmkt") ||
           !files.isFile(joinPath(folder, name));
  });
  std::sort(names.begin(), names.end());  // of names that differ in case alone, a fixed order
  std::stable_sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    return lowered(baseName(a)) < lowered(baseName(b));
  });
  return names;
}

}  // namespace tamrikon
