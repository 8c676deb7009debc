#include "compiler/topic_order.h"

#include <algorithm>
#include <compare>
#include <cstddef>
#include <unordered_map>

#include "base/sort_keys.h"
#include "model/link_lists.h"

namespace tamrikon {
namespace {

/// The wrappers as they stand in an alphabet of their labels.
std::vector<WrapperRef> sortWrappersByLabel(const std::vector<WrapperRef>& wrappers) {
  SortKeys keys;
  for (const WrapperRef& wrapper : wrappers) {
    keys.append(LinkLists::indexLabel(*wrapper));
    keys.endKey();
  }
  std::vector<WrapperRef> sorted;
  sorted.reserve(wrappers.size());
  for (const std::size_t n : keys.order()) sorted.push_back(wrappers[n]);
  return sorted;
}

/// Where a topic stands in the stretch of its module.
std::size_t groupOf(WrapperKind kind) {
  switch (kind) {
    case WrapperKind::module: return 0;
    case WrapperKind::method: return 1;
    case WrapperKind::propGet:
    case WrapperKind::propLet:
    case WrapperKind::propSet: return 2;
    case WrapperKind::event: return 3;
    case WrapperKind::constant: return 4;
    case WrapperKind::variable: break;
  }
  return 5;
}

struct Place {
  std::size_t stretch;
  std::size_t group;
  std::size_t inAlphabet;
  auto operator<=>(const Place&) const = default;
};

using Stretches = std::unordered_map<const CodeModule*, std::size_t>;

/// The numbers of the stretches that begin with a module.
Stretches stretchesOf(const std::vector<WrapperRef>& sorted) {
  std::vector<const Wrapper*> modules;
  for (const WrapperRef& wrapper : sorted) {
    if (wrapper->kind() == WrapperKind::module) modules.push_back(wrapper.get());
  }
  std::stable_sort(modules.begin(), modules.end(), [](const Wrapper* a, const Wrapper* b) {
    return moduleKindOf(a->source().type()) < moduleKindOf(b->source().type());
  });
  Stretches stretches;
  for (const Wrapper* module : modules) stretches.emplace(&module->cmo(), stretches.size());
  return stretches;
}

}  // namespace

std::vector<std::vector<WrapperRef>> topicOrder(const std::vector<WrapperRef>& wrappers) {
  const std::vector<WrapperRef> sorted = sortWrappersByLabel(wrappers);
  const Stretches stretches = stretchesOf(sorted);
  std::vector<Place> places;
  places.reserve(sorted.size());
  for (std::size_t n = 0; n < sorted.size(); ++n) {
    const Wrapper& wrapper = *sorted[n];
    const auto found = stretches.find(&wrapper.cmo());
    const bool isAlone = found == stretches.end() ||
                         (isProperty(wrapper.kind()) && isStandardModule(wrapper.source().type()));
    places.push_back({isAlone ? stretches.size() + n : found->second, groupOf(wrapper.kind()), n});
  }
  std::sort(places.begin(), places.end());
  std::vector<std::vector<WrapperRef>> order;
  std::size_t stretch = 0;
  for (const Place& place : places) {
    if (order.empty() || place.stretch != stretch) order.emplace_back();
    stretch = place.stretch;
    order.back().push_back(sorted[place.inAlphabet]);
  }
  return order;
}

}  // namespace tamrikon
