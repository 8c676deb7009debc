#include "cli/written_summary.h"

#include <algorithm>
#include <exception>

#include "base/paths.h"
#include "cli/path_from_here.h"
#include "compiler/store.h"

namespace tamrikon {
namespace {

/// With a comma before each three digits.
std::string grouped(std::size_t number) {
  std::string digits = std::to_string(number);
  for (std::size_t at = digits.size(); at > 3; at -= 3) digits.insert(at - 3, ",");
  return digits;
}

void addOnce(std::vector<std::string>& all, const std::string& text) {
  if (std::find(all.begin(), all.end(), text) == all.end()) all.push_back(text);
}

}  // namespace

void WrittenSummary::addProject() {
  const std::string& above = run_.groupFolders.above;
  const std::string& folder = above.empty() ? session_.settings.outputPath : above;
  addOnce(folders_, std::string(withoutTrailingSeparator(folder)));
  const std::string file = helpFile();
  if (session_.files.files().isFile(file)) addOnce(helpFiles_, file);
}

std::string WrittenSummary::helpFile() const {
  try {
    return session_.currentStore->helpFile();
  } catch (const std::exception&) {
    return {};  // whoever opens the file hears of it
  }
}

std::string WrittenSummary::shown(const std::string& path) const {
  return pathFromHere(session_.files.files(), path);
}

std::string WrittenSummary::sentence() const {
  if (folders_.empty()) return {};
  const WrittenFiles& files = run_.writtenFiles;
  std::string text = "Wrote " + grouped(files.count()) + (files.count() == 1 ? " page" : " pages");
  if (files.changedIsKnown()) text += " (" + grouped(files.changed()) + " changed)";
  text += " to ";
  text += folders_.size() == 1 ? shown(folders_[0]) : grouped(folders_.size()) + " folders";
  if (helpFiles_.empty()) return text;
  text += "; open " + shown(helpFiles_[0]);
  if (helpFiles_.size() > 1) text += ", the first of " + grouped(helpFiles_.size()) + " documents";
  return text;
}

}  // namespace tamrikon
