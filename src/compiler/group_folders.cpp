#include "compiler/group_folders.h"

#include <cstddef>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "base/case_folding.h"

namespace tamrikon {

std::string GroupFolders::of(const VBProjects& projects, const VBProject& project) const {
  for (std::size_t n = 0; n < names.size(); ++n) {
    if (&projects.Item(static_cast<int>(n) + 1) == &project) return names[n];
  }
  return {};
}

GroupFolders foldersBelow(std::string above, const VBProjects& projects) {
  GroupFolders folders{std::move(above), {}};
  std::unordered_set<std::string> taken;  // a project that has its name alone keeps it
  for (int number = 1; number <= projects.Count(); ++number) {
    taken.insert(lowered(projects.Item(number).Name()));
  }
  std::unordered_map<std::string, int> uses;
  for (int number = 1; number <= projects.Count(); ++number) {
    const VBProject& project = projects.Item(number);
    std::string name;
    if (project.VBComponents().Count() != 0) {
      name = project.Name();
      int& count = uses[lowered(name)];
      if (++count > 1) {
        std::string made;
        do {
          made = name + "_" + std::to_string(count++);
        } while (!taken.insert(lowered(made)).second);
        --count;
        name = std::move(made);
      }
    }
    folders.names.push_back(std::move(name));
  }
  return folders;
}

}  // namespace tamrikon
