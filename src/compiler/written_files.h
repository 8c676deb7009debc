// Which files a run has written for which project: how many, and which pages have taken the place
// of others. A run is the compile of a project, or of all projects of a group.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/diagnostic.h"

namespace tamrikon {

class WrittenFiles {
 public:
  /// Nothing has been written yet.
  void beginRun();

  /// What is written from now on are the pages of this project, in `folder`. `file`, the project's
  /// own, tells it from another one of its name.
  void beginProject(std::string_view name, std::string_view file, std::string_view folder);

  /// The project has written a file of that name, with other bytes than it had if `changed` is set.
  void add(std::string_view name, bool changed);

  /// The same for a page of the group, which every project writes anew, by its whole path.
  void addGroupPage(std::string_view path, bool changed);

  /// A page was added to a file that was written before, so that nobody knows whether the whole
  /// differs from what the last run left.
  void append() { changedIsKnown_ = false; }

  /// How many files the run has written.
  std::size_t count() const { return count_; }

  /// Those of them that are new or have other bytes now, if that is known.
  std::size_t changed() const { return changed_; }
  bool changedIsKnown() const { return changedIsKnown_; }

  /// One for each project, this one included, over whose files the project has written, and for
  /// each whose files have names that differ from its own in case alone. The first one of the run
  /// that is about two projects names the way out.
  std::vector<Diagnostic> endProject();

 private:
  struct Project {
    std::string name;
    std::string file;
  };
  struct Written {
    std::size_t project;
    std::string name;
    bool changed = false;
  };
  using Lost = std::map<std::pair<std::size_t, bool>, std::vector<std::string>>;

  void count(Written& file, bool isNew, bool changed);
  std::string describe(std::size_t project, std::size_t other) const;
  std::string sentence(std::size_t before, bool differsInCase,
                       const std::vector<std::string>& names);

  std::vector<Project> projects_;
  std::string folder_;                              // of the project in work, in lower case
  std::unordered_map<std::string, Written> files_;  // by their paths in lower case
  Lost lost_;  // by the project whose files they were, and whether only the case differs
  std::size_t count_ = 0;  // of files, those that differ only in case being two
  std::size_t changed_ = 0;
  bool changedIsKnown_ = true;
  bool hasNamedWayOut_ = false;
};

}  // namespace tamrikon
