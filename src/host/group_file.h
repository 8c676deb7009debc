// A project group (.vbg).
#pragma once

#include <string_view>
#include <vector>

namespace tamrikon {

struct GroupLine {
  std::string_view path;  // bytes, not decoded yet
  bool isStartup;
};

/// Whether the file is a group: by its extension or its first line.
bool isGroupFile(std::string_view path, std::string_view bytes);

/// Whether the first line is that of a group.
bool beginsAsGroup(std::string_view bytes);

/// The projects in the order of the lines; views into `bytes`.
std::vector<GroupLine> readGroupFile(std::string_view bytes);

}  // namespace tamrikon
