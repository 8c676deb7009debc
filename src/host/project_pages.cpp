#include "host/project_pages.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tamrikon {
namespace {

constexpr int kDefault = 1252;

/// "A", "A and B", "A, B and C", or of more than five the first with the number of the others.
std::string listed(const std::vector<std::string>& names) {
  constexpr std::size_t kMost = 5;
  const std::size_t shown = names.size() > kMost ? kMost - 1 : names.size() - 1;
  std::string text;
  for (std::size_t i = 0; i < shown; ++i) text += (i == 0 ? "" : ", ") + names[i];
  if (shown > 0) text += " and ";
  if (names.size() > kMost) return text + std::to_string(names.size() - shown) + " others";
  return text + names.back();
}

}  // namespace

void ProjectPages::add(const CodePage* chosen, const CodePageGuess& guess) {
  Found found;
  if (chosen != nullptr) {
    found.page = chosen->number();
    found.source = Source::asked;
  } else {
    found.page = guess.named();
    found.needsPage = guess.needsPage();
    if (found.page != 0) {
      found.source = Source::named;
    } else if (found.needsPage) {
      found.page = guess.fromBytes();
      if (found.page != 0) found.source = Source::bytes;
    }
  }
  if (found.page == 0) found.bytes = guess.bytes();
  projects_.push_back(std::move(found));
}

int ProjectPages::ofOthers(const Found& project) const {
  std::map<int, std::size_t> counts;
  for (const Found& other : projects_) {
    if (other.page != 0) ++counts[other.page];
  }
  int common = kDefault;
  std::size_t most = 0;
  for (const auto& [page, count] : counts) {
    if (count < most || !project.bytes.canBe(page)) continue;
    common = count == most ? kDefault : page;
    most = count;
  }
  return common;
}

const CodePage& ProjectPages::of(std::size_t project) const {
  const Found& found = projects_[project];
  return *CodePage::find(found.page != 0 ? found.page : ofOthers(found));
}

std::vector<std::size_t> ProjectPages::surestFirst() const {
  std::vector<std::size_t> order(projects_.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return projects_[a].source < projects_[b].source;
  });
  return order;
}

std::vector<Diagnostic> ProjectPages::notes(
    const std::function<std::string(std::size_t project)>& nameOf) const {
  std::map<int, std::vector<std::string>> guessed;
  std::vector<std::string> unknown;
  for (std::size_t i = 0; i < projects_.size(); ++i) {
    const Found& project = projects_[i];
    if (!project.needsPage) continue;
    if (project.source == Source::bytes || (project.page == 0 && of(i).number() != kDefault)) {
      guessed[of(i).number()].push_back(nameOf(i));
    } else if (project.page == 0) {
      unknown.push_back(nameOf(i));
    }
  }
  constexpr const char* kWayOut =
      "; change it with --codepage, or for good with 'settings --keep-codepage'";
  std::vector<Diagnostic> notes;
  const auto add = [&](std::string_view code, std::string text) {
    notes.push_back({Diagnostic::About::project, Severity::note, code, text + kWayOut});
  };
  for (const auto& [page, names] : guessed) {
    add("guessed-code-page",
        "the code page of " + listed(names) + " is guessed to be " + std::to_string(page));
  }
  if (!unknown.empty()) {
    add("unknown-code-page", "nothing tells the code page of " + listed(unknown) +
                                 ", and bytes above 127 are read as 1252");
  }
  return notes;
}

}  // namespace tamrikon
