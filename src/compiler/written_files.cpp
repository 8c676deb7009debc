#include "compiler/written_files.h"

#include <algorithm>

#include "base/case_folding.h"

namespace tamrikon {
namespace {

/// The first names of a list, which may be long.
std::string listed(const std::vector<std::string>& names) {
  constexpr std::size_t kShown = 5;
  std::string text;
  for (std::size_t n = 0; n < std::min(names.size(), kShown); ++n) {
    text.append(n == 0 ? "" : ", ").append(names[n]);
  }
  if (names.size() > kShown) text += " and " + std::to_string(names.size() - kShown) + " more";
  return text;
}

}  // namespace

void WrittenFiles::beginRun() {
  *this = {};
}

void WrittenFiles::beginProject(std::string_view name, std::string_view file,
                                std::string_view folder) {
  projects_.push_back({std::string(name), std::string(file)});
  folder_ = lowered(folder) + "/";
}

void WrittenFiles::add(std::string_view name, bool changed) {
  std::string path = folder_;
  appendLowered(path, name);
  const auto [entry, isNew] = files_.try_emplace(std::move(path));
  Written& file = entry->second;
  const bool differsInCase = !isNew && file.name != name;
  if (!isNew) lost_[{file.project, differsInCase}].emplace_back(name);
  file.project = projects_.size() - 1;
  file.name = name;
  count(file, isNew || differsInCase, changed);
}

void WrittenFiles::addGroupPage(std::string_view path, bool changed) {
  const auto [entry, isNew] = files_.try_emplace(std::string(path));
  count(entry->second, isNew, changed);
}

/// A file counts once, whatever is written over it.
void WrittenFiles::count(Written& file, bool isNew, bool changed) {
  if (isNew) {
    ++count_;
    file.changed = false;
  }
  if (changed && !file.changed) ++changed_;
  file.changed = file.changed || changed;
}

std::vector<Diagnostic> WrittenFiles::endProject() {
  std::vector<Diagnostic> faults;
  for (const auto& [key, names] : std::exchange(lost_, {})) {
    const std::string_view code = key.second ? "page-names-differ-in-case" : "overwritten-pages";
    faults.push_back({Diagnostic::About::project, Severity::warning, code,
                      sentence(key.first, key.second, names)});
    faults.back().place.project = projects_.back().name;
  }
  return faults;
}

std::string WrittenFiles::describe(std::size_t project, std::size_t other) const {
  const Project& described = projects_[project];
  if (project == other || !equalIgnoringCase(described.name, projects_[other].name)) {
    return described.name;
  }
  return described.name + " (" + described.file + ")";
}

std::string WrittenFiles::sentence(std::size_t before, bool differsInCase,
                                   const std::vector<std::string>& names) {
  const std::size_t project = projects_.size() - 1;
  const bool isSame = before == project;
  std::string text;
  if (differsInCase) {
    text = describe(project, before) + (isSame ? "" : " and " + describe(before, project)) +
           " wrote files whose names differ in case alone, which many systems take for one: ";
  } else if (isSame) {
    text = "several pages of " + projects_[project].name + " went into one file: ";
  } else {
    text = describe(project, before) + " wrote over " + std::to_string(names.size()) +
           (names.size() == 1 ? " file of " : " files of ") + describe(before, project) + ": ";
  }
  text += listed(names);
  if (!isSame && !std::exchange(hasNamedWayOut_, true)) {
    text += " (`tamrikon compile --folders` gives each project of a group a folder of its own)";
  }
  return text;
}

}  // namespace tamrikon
