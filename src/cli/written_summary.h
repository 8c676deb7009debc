// What a compile has written, as one line for people.
#pragma once

#include <string>
#include <vector>

#include "compiler/session.h"

namespace tamrikon {

class WrittenSummary {
 public:
  /// `session` must outlive this object.
  explicit WrittenSummary(Session& session) : session_(session) {}

  /// Takes in the project whose compile has just finished.
  void addProject();

  /// Such as "Wrote 1,204 pages (3 changed) to docs; open docs/index.html"; empty if no compile
  /// has finished.
  std::string sentence() const;

 private:
  std::string helpFile() const;
  std::string shown(const std::string& path) const;

  Session& session_;
  std::vector<std::string> folders_;
  std::vector<std::string> helpFiles_;  // those that are there
};

}  // namespace tamrikon
