#include "compiler/topic_order.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "base/case_folding.h"
#include "model/link_lists.h"

namespace tamrikon {
namespace {

std::vector<WrapperRef> sortWrappersByLabel(const std::vector<WrapperRef>& wrappers) {
  std::vector<std::pair<std::string, WrapperRef>> keyed;
  keyed.reserve(wrappers.size());
  for (const WrapperRef& wrapper : wrappers) {
    keyed.emplace_back(lowered(LinkLists::indexLabel(*wrapper)), wrapper);
  }
  std::stable_sort(keyed.begin(), keyed.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<WrapperRef> sorted;
  sorted.reserve(keyed.size());
  for (auto& [label, wrapper] : keyed) sorted.push_back(std::move(wrapper));
  return sorted;
}

/// Where a member stands behind its module.
std::size_t groupOf(WrapperKind kind) {
  switch (kind) {
    case WrapperKind::method: return 0;
    case WrapperKind::propGet:
    case WrapperKind::propLet:
    case WrapperKind::propSet: return 1;
    case WrapperKind::event: return 2;
    case WrapperKind::constant: return 3;
    default: return 4;
  }
}

std::size_t groupOfModule(ComponentType type) {
  if (isStandardModule(type)) return 2;
  return isForm(type) ? 0 : 1;
}

}  // namespace

std::vector<std::vector<WrapperRef>> topicOrder(const std::vector<WrapperRef>& wrappers) {
  const std::vector<WrapperRef> sorted = sortWrappersByLabel(wrappers);
  std::array<std::vector<WrapperRef>, 3> modules;
  std::unordered_map<const CodeModule*, std::array<std::vector<WrapperRef>, 5>> members;
  for (const WrapperRef& wrapper : sorted) {
    if (wrapper->kind() == WrapperKind::module) {
      modules[groupOfModule(wrapper->source().type())].push_back(wrapper);
    } else {
      members[&wrapper->cmo()][groupOf(wrapper->kind())].push_back(wrapper);
    }
  }
  std::vector<std::vector<WrapperRef>> order;
  std::unordered_set<const Wrapper*> placed;
  const auto place = [&](const WrapperRef& wrapper) {
    placed.insert(wrapper.get());
    order.back().push_back(wrapper);
  };
  for (const std::vector<WrapperRef>& kind : modules) {
    for (const WrapperRef& module : kind) {
      order.emplace_back();
      place(module);
      const auto found = members.find(&module->cmo());
      if (found == members.end()) continue;
      const bool skipsProperties = isStandardModule(module->source().type());
      for (std::size_t group = 0; group < found->second.size(); ++group) {
        if (skipsProperties && group == groupOf(WrapperKind::propGet)) continue;
        for (const WrapperRef& member : found->second[group]) place(member);
      }
    }
  }
  for (const WrapperRef& wrapper : sorted) {
    if (placed.count(wrapper.get()) != 0) continue;
    order.emplace_back();
    place(wrapper);
  }
  return order;
}

}  // namespace tamrikon
