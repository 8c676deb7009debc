#include "host/group_file.h"

#include "base/line_reader.h"
#include "base/paths.h"
#include "base/utf8.h"
#include "host/project_file.h"
#include "vb/scanning.h"

namespace tamrikon {
bool isGroupFile(std::string_view path, std::string_view bytes) {
  const std::string_view name = lastName(path);
  const std::size_t dot = name.rfind('.');
  if (dot != std::string_view::npos && isKeyword(name.substr(dot), ".vbg")) return true;
  return beginsAsGroup(bytes);
}

bool beginsAsGroup(std::string_view bytes) {
  bytes = withoutUtf8Mark(bytes);
  return isKeyword(takeWord(bytes), "vbgroup");
}

std::vector<GroupLine> readGroupFile(std::string_view bytes) {
  std::vector<GroupLine> projects;
  for (LineReader reader(withoutUtf8Mark(bytes)); reader.next();) {
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
