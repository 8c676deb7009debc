#include "platform/folder_listing.h"

#include <algorithm>
#include <utility>

#include "base/case_folding.h"
#include "base/paths.h"

namespace tamrikon {
namespace {

using Kind = bool (FileSystem::*)(const std::string& path);

std::vector<std::string> namesIn(FileSystem& files, const std::string& folder, Kind isOfKind) {
  if (folder.empty()) return {};
  std::vector<std::pair<std::string, std::string>> found;  // folded for comparing, as it stands
  for (std::string& name : files.list(folder)) {
    if (!(files.*isOfKind)(joinPath(folder, name))) continue;
    std::string folded = lowered(name);
    found.emplace_back(std::move(folded), std::move(name));
  }
  std::sort(found.begin(), found.end());
  std::vector<std::string> names;
  names.reserve(found.size());
  for (auto& [folded, name] : found) names.push_back(std::move(name));
  return names;
}

}  // namespace

std::vector<std::string> filesIn(FileSystem& files, const std::string& folder) {
  return namesIn(files, folder, &FileSystem::isFile);
}

std::vector<std::string> foldersIn(FileSystem& files, const std::string& folder) {
  return namesIn(files, folder, &FileSystem::isFolder);
}

}  // namespace tamrikon
