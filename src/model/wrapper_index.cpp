#include "model/wrapper_index.h"

#include <algorithm>
#include <functional>

namespace tamrikon {

WrapperIndex::WrapperIndex(const WrapperCollections& wrappers) {
  findAmbiguous(wrappers);
  collectMembers(wrappers);
  collectModules(wrappers.all);
}

WrapperIndex::Group WrapperIndex::groupOf(const Wrapper& wrapper) {
  const bool isStandard = isStandardModule(wrapper.source().type());
  switch (wrapper.kind()) {
    case WrapperKind::constant: return Group::constants;
    case WrapperKind::variable: return Group::variables;
    case WrapperKind::event: return Group::events;
    case WrapperKind::method: return isStandard ? Group::functions : Group::methods;
    case WrapperKind::propGet:
    case WrapperKind::propLet:
    case WrapperKind::propSet: return Group::properties;
    case WrapperKind::module: break;
  }
  return Group::none;
}

bool WrapperIndex::sharesName(const Named& a, const Named& b) {
  return a.hash == b.hash && a.group == b.group && a.wrapper->name() == b.wrapper->name();
}

/// Sorting brings wrappers of one name together; most stand alone, and nobody asks about those.
void WrapperIndex::findAmbiguous(const WrapperCollections& wrappers) {
  std::vector<Named> named;
  named.reserve(wrappers.all.size());
  for (const WrapperList* list :
       {&wrappers.constants, &wrappers.variables, &wrappers.events, &wrappers.methods,
        &wrappers.gets, &wrappers.sets, &wrappers.lets}) {
    for (const WrapperRef& wrapper : *list) {
      const Group group = groupOf(*wrapper);
      const std::size_t hash = std::hash<std::string_view>()(wrapper->name());
      named.push_back({hash ^ static_cast<std::size_t>(group), group, wrapper.get()});
    }
  }
  std::sort(named.begin(), named.end(), [](const Named& a, const Named& b) {
    if (a.hash != b.hash) return a.hash < b.hash;
    if (a.group != b.group) return a.group < b.group;
    return a.wrapper->name() < b.wrapper->name();
  });
  for (NamedRun begin = named.begin(); begin != named.end();) {
    const NamedRun end = std::find_if_not(
        begin + 1, named.cend(), [&](const Named& other) { return sharesName(*begin, other); });
    if (end - begin > 1) findAmbiguousIn(begin, end);
    begin = end;
  }
}

void WrapperIndex::findAmbiguousIn(NamedRun begin, NamedRun end) {
  const bool areProperties = begin->group == Group::properties;
  // An event of a standard module never makes another one's name ambiguous.
  const auto counts = [](const Wrapper& wrapper) {
    return wrapper.kind() != WrapperKind::event || !isStandardModule(wrapper.source().type());
  };
  // What doesn't clash with a wrapper: itself, or as a property all of its module.
  const auto own = [&](const Wrapper& wrapper) {
    return areProperties ? static_cast<const void*>(&wrapper.cmo()) : &wrapper;
  };
  std::vector<Holder>& holders = holders_;  // those that count, by comment
  holders.clear();
  for (NamedRun named = begin; named != end; ++named) {
    const Wrapper& wrapper = *named->wrapper;
    if (counts(wrapper)) holders.push_back({wrapper.comment.get(), own(wrapper)});
  }
  if (holders.empty()) return;
  std::sort(holders.begin(), holders.end());
  const auto byOwner = [](const Holder& a, const Holder& b) { return a.owner < b.owner; };
  const auto all = std::minmax_element(holders.begin(), holders.end(), byOwner);
  for (NamedRun named = begin; named != end; ++named) {
    const Wrapper& wrapper = *named->wrapper;
    const auto isOther = [&](const Holder& holder) { return holder.owner != own(wrapper); };
    if (!isOther(*all.first) && !isOther(*all.second)) continue;
    // Of one comment they stand by owner.
    const Holder any{wrapper.comment.get(), nullptr};
    const auto [first, last] =
        std::equal_range(holders.begin(), holders.end(), any,
                         [](const Holder& a, const Holder& b) { return a.comment < b.comment; });
    const bool isShared = first != last && (isOther(*first) || isOther(*(last - 1)));
    if (!isShared) ambiguous_.insert(&wrapper);
  }
}

// Links are unique, and so are the names of a kind in a module.
void WrapperIndex::collectMembers(const WrapperCollections& wrappers) {
  const auto hasCompanion = [](const Wrapper& wrapper, const WrapperList& list,
                               std::string_view mark) {
    const std::string_view link = wrapper.link();
    std::string companion(link.substr(0, link.size() - mark.size()));
    const Wrapper* found = findWrapper(list, companion.append(mark));
    return found != nullptr && &found->cmo() == &wrapper.cmo();
  };
  for (const WrapperRef& get : wrappers.gets) {
    members_[&get->cmo()].properties.push_back(get.get());
  }
  for (const WrapperRef& set : wrappers.sets) {
    if (hasCompanion(*set, wrappers.gets, "'get")) continue;
    members_[&set->cmo()].properties.push_back(set.get());
  }
  for (const WrapperRef& let : wrappers.lets) {
    if (hasCompanion(*let, wrappers.gets, "'get")) continue;
    if (hasCompanion(*let, wrappers.sets, "'set")) continue;
    members_[&let->cmo()].properties.push_back(let.get());
  }
  for (const WrapperRef& method : wrappers.methods) {
    members_[&method->cmo()].methods.push_back(method.get());
  }
  for (const WrapperRef& event : wrappers.events) {
    members_[&event->cmo()].events.push_back(event.get());
  }
}

void WrapperIndex::collectModules(const WrapperList& all) {
  for (const WrapperRef& wrapper : all) {
    if (!wrapper->comment->isShared) continue;
    const std::string_view module = wrapper->source().name();
    modules_[wrapper->comment.get()].add(module, module);
  }
}

const WrapperIndex::ModuleMembers& WrapperIndex::membersOf(const CodeModule& module) const {
  static const ModuleMembers none;
  const auto found = members_.find(&module);
  return found == members_.end() ? none : found->second;
}

const KeyedList<std::string_view>* WrapperIndex::sharingModules(const Wrapper& wrapper) const {
  if (!wrapper.comment->isShared) return nullptr;
  const auto shared = modules_.find(wrapper.comment.get());
  if (shared == modules_.end() || shared->second.size() < 2) return nullptr;
  return &shared->second;
}

}  // namespace tamrikon
