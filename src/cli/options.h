// What the command line asks for.
#pragma once

#include <string>
#include <vector>

namespace tamrikon {

/// The code page of --codepage; 0 if it is to be found.
struct ProjectOptions {
  std::string project;
  int codePage = 0;
};

struct CompileOptions : ProjectOptions {
  std::vector<std::string> settings;  // KEY=VALUE
  std::string templateFile;
  std::string outputFolder;
  bool hasFolders = false;  // one for each project of a group
  std::string logFile;
  bool runsPrograms = true;
  bool saves = false;
  bool quiet = false;
  bool verbose = false;
  bool failsOnWarnings = false;
  bool opens = false;
  bool printsTimes = false;
  bool addsModules = false;
};

struct SettingsOptions : ProjectOptions {
  std::vector<std::string> settings;  // KEY=VALUE
  bool addsModules = false;
  bool leavesOutModules = false;
  bool allProjects = false;  // of a group; otherwise the one that starts
  int keptCodePage = 0;      // the one to be kept beside the project; 0: none

  bool changesSettings() const { return !settings.empty() || addsModules || leavesOutModules; }
};

struct CommentOptions : ProjectOptions {
  std::vector<std::string> targets;  // with `missing` names of modules, none meaning all
  bool missing = false;
  bool allProjects = false;  // of a group; otherwise the one that starts
  bool dryRun = false;
};

struct ExampleOptions : ProjectOptions {
  std::string range;  // MODULE:RANGE
};

}  // namespace tamrikon
