// Which files a run has written for which project, to find pages that have taken the place of
// others. A run is the compile of a project, or of all projects of a group.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tamrikon {

class WrittenFiles {
 public:
  /// Nothing has been written yet.
  void beginRun();

  /// What is written from now on are the pages of this project, in `folder`. `file`, the project's
  /// own, tells it from another one of its name.
  void beginProject(std::string_view name, std::string_view file, std::string_view folder);

  /// The project writes a file of that name.
  void add(std::string_view name);

  /// A line for each project, this one included, over whose files the project has written, and for
  /// each whose files have names that differ from its own in case alone. The first line of the run
  /// that tells of two projects names the way out.
  std::vector<std::string> endProject();

 private:
  struct Project {
    std::string name;
    std::string file;
  };
  struct Written {
    std::size_t project;
    std::string name;
  };
  using Lost = std::map<std::pair<std::size_t, bool>, std::vector<std::string>>;

  std::string describe(std::size_t project, std::size_t other) const;
  std::string sentence(std::size_t before, bool differsInCase,
                       const std::vector<std::string>& names);

  std::vector<Project> projects_;
  std::string folder_;                              // of the project in work, in lower case
  std::unordered_map<std::string, Written> files_;  // by their paths in lower case
  Lost lost_;  // by the project whose files they were, and whether only the case differs
  bool hasNamedWayOut_ = false;
};

}  // namespace tamrikon
