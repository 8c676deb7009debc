#include "base/paths.h"

#include <algorithm>
#include <filesystem>

namespace tamrikon {
namespace {

constexpr std::string_view kSeparators = "\\/";
constexpr char kNativeSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

}  // namespace

char separatorOf(std::string_view path) {
  return path.find('\\') != std::string_view::npos ? '\\' : kNativeSeparator;
}

std::string_view lastName(std::string_view path) {
  return path.substr(path.find_last_of(kSeparators) + 1);
}

std::string_view folderOf(std::string_view path) {
  const std::size_t last = path.find_last_of(kSeparators);
  return last == std::string_view::npos ? std::string_view() : path.substr(0, last);
}

std::string_view baseName(std::string_view path) {
  const std::string_view name = lastName(path);
  return name.substr(0, name.rfind('.'));
}

bool hasExtension(std::string_view path) {
  return lastName(path).find('.') != std::string_view::npos;
}

bool endsInSeparator(std::string_view path) {
  return !path.empty() && kSeparators.find(path.back()) != std::string_view::npos;
}

std::string_view withoutTrailingSeparator(std::string_view path) {
  if (endsInSeparator(path)) path.remove_suffix(1);
  return path;
}

std::string joinPath(std::string_view folder, std::string_view name) {
  std::string result(folder);
  if (!endsInSeparator(folder)) result += separatorOf(folder);
  return result.append(name);
}

bool isAbsolutePath(std::string_view path) {
  if (path.empty()) return false;
  if (kSeparators.find(path.front()) != std::string_view::npos) return true;
  return path.size() >= 2 && path[1] == ':';
}

std::string nativePath(std::string_view path) {
  std::string result(path);
  std::replace(result.begin(), result.end(), '\\', kNativeSeparator);
  return result;
}

}  // namespace tamrikon
