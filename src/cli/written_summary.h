// What a compile has written, as one line for people.
#pragma once

#include <string>
#include <vector>

#include "compiler/compile_run.h"
#include "compiler/session.h"

namespace tamrikon {

class WrittenSummary {
 public:
  /// Both must outlive this object.
  WrittenSummary(Session& session, const CompileRun& run) : session_(session), run_(run) {}

  /// Takes in the project whose compile has just finished.
  void addProject();

  /// Such as "Wrote 1,204 pages (3 changed) to docs; open docs/index.html"; empty if no compile
  /// has finished.
  std::string sentence() const;

 private:
  std::string helpFile() const;
  std::string shown(const std::string& path) const;

  Session& session_;
  const CompileRun& run_;
  std::vector<std::string> folders_;
  std::vector<std::string> helpFiles_;  // those that are there
};

}  // namespace tamrikon
