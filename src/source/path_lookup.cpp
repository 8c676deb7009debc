#include "source/path_lookup.h"

#include <algorithm>
#include <filesystem>

#include "base/paths.h"
#include "base/text.h"

namespace tamrikon {
namespace {

// No system has longer paths, nor any with more folders; the search calls itself once a folder.
constexpr std::size_t kMaxLength = 32767;
constexpr int kMaxDepth = 256;
// Where folders are links to each other, there is no end of ways to go.
constexpr int kMaxDetours = 1000;

std::string joined(std::string_view folder, std::string_view path) {
  return nativePath(isAbsolutePath(path) ? std::string(path) : joinPath(folder, path));
}

std::string withoutDetours(const std::string& path) {
  const std::string direct = std::filesystem::path(path).lexically_normal().string();
  return path.starts_with("//") && !direct.starts_with("//") ? '/' + direct : direct;
}

/// Whether the platform itself takes the path as absolute; a drive letter may mean nothing to it.
bool isAbsoluteHere(const std::string& nativePath) {
  return std::filesystem::path(nativePath).is_absolute();
}

}  // namespace

std::string PathLookup::tried(std::string_view folder, std::string_view path) {
  return withoutDetours(joined(folder, path));
}

std::string PathLookup::find(std::string_view folder, std::string_view path) {
  if (path.empty() || path.size() > kMaxLength) return {};
  if (path.find('\0') != std::string_view::npos) return {};
  if (!isAbsolutePath(path)) return findAt(joined(folder, path));
  const std::string native = nativePath(path);
  const std::string found = isAbsoluteHere(native) ? findAt(native) : std::string();
  return !found.empty() ? found : findAt(joined(folder, lastName(path)));
}

std::string PathLookup::findAt(const std::string& path) {
  std::string absolute = files_.absolute(path);
  if (files_.isFile(absolute)) return absolute;
  // Where a folder on the way is a link, ".." behind it may lead elsewhere than its text says.
  if (files_.isFile(path)) return path;
  const std::string root = std::filesystem::path(absolute).root_path().string();
  return findIgnoringCase(root, std::string_view(absolute).substr(root.size()), 0);
}

std::string PathLookup::findIgnoringCase(std::string_view root, std::string_view rest, int depth) {
  if (depth > kMaxDepth) return {};
  const std::size_t length = std::min(rest.find_first_of("\\/"), rest.size());
  const std::string_view name = rest.substr(0, length);
  rest.remove_prefix(std::min(length + 1, rest.size()));
  const Names& names = namesIn(std::string(root));
  const auto candidates = names.find(name);
  if (candidates == names.end()) return {};
  for (const std::string& candidate : candidates->second) {
    if (&candidate != &candidates->second.front() && ++detours_ > kMaxDetours) return {};
    std::string path = joinPath(root, candidate);
    if (!rest.empty()) {
      std::string found = findIgnoringCase(path, rest, depth + 1);
      if (!found.empty()) return found;
    } else if (files_.isFile(path)) {
      return path;
    }
  }
  return {};
}

const PathLookup::Names& PathLookup::namesIn(const std::string& folder) {
  const auto [entry, isNew] = folders_.try_emplace(folder);
  if (isNew) {
    std::vector<std::string> names = files_.list(folder);
    std::sort(names.begin(), names.end());  // so that the choice among several doesn't vary
    for (std::string& name : names) entry->second[name].push_back(std::move(name));
  }
  return entry->second;
}

}  // namespace tamrikon
