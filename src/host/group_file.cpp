#include "host/group_file.h"

#include "base/line_reader.h"
#include "base/paths.h"
#include "host/project_file.h"
#include "vb/scanning.h"

namespace tamrikon {
namespace {

std::string_view withoutMark(std::string_view bytes) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kMark)) bytes.remove_prefix(kMark.size());
  return bytes;
}

}  // namespace

bool isGroupFile(std::string_view path, std::string_view bytes) {
  const std::string_view name = lastName(path);
  const std::size_t dot = name.rfind('.');
  if (dot != std::string_view::npos && isKeyword(name.substr(dot), ".vbg")) return true;
  return beginsAsGroup(bytes);
}

bool beginsAsGroup(std::string_view bytes) {
  bytes = withoutMark(bytes);
  return isKeyword(takeWord(bytes), "vbgroup");
}

std::vector<GroupLine> readGroupFile(std::string_view bytes) {
  std::vector<GroupLine> projects;
  for (LineReader reader(withoutMark(bytes)); reader.next();) {
    const std::size_t equals = reader.line().find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view key = trimBlanks(reader.line().substr(0, equals));
    const bool isStartup = isKeyword(key, "startupproject");
    if (!isStartup && !isKeyword(key, "project")) continue;
    projects.push_back({withoutQuotes(reader.line().substr(equals + 1)), isStartup});
  }
  return projects;
}

}  // namespace tamrikon
