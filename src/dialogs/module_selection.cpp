#include "dialogs/module_selection.h"

#include <algorithm>
#include <unordered_map>

namespace tamrikon {

void ModuleSelection::fill(const KeyedList<CodeModule*>& all,
                           const KeyedList<CodeModule*>& chosen) {
  std::unordered_map<CodeModule*, std::size_t> ranks;
  lastRank_ = 0;
  for (CodeModule* module : chosen) ranks[module] = ++lastRank_;
  entries_.clear();
  const auto add = [this](CodeModule* module, std::size_t rank) {
    tryStep([&] { entries_.push_back({module->Name(), module, rank}); });
  };
  for (CodeModule* module : all) {
    const auto rank = ranks.find(module);
    add(module, rank == ranks.end() ? 0 : rank->second);
    if (rank != ranks.end()) ranks.erase(rank);
  }
  size_ = entries_.size();
  for (const auto& [module, rank] : ranks) add(module, rank);
}

void ModuleSelection::choose(std::size_t index) {
  if (entries_[index].rank == 0) entries_[index].rank = ++lastRank_;
}

KeyedList<CodeModule*> ModuleSelection::list() const {
  std::vector<const Entry*> chosen;
  for (const Entry& entry : entries_) {
    if (entry.rank != 0) chosen.push_back(&entry);
  }
  std::sort(chosen.begin(), chosen.end(),
            [](const Entry* a, const Entry* b) { return a->rank < b->rank; });
  KeyedList<CodeModule*> modules;
  for (const Entry* entry : chosen) modules.add(entry->module, entry->name);
  return modules;
}

}  // namespace tamrikon
