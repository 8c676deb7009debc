#include "model/wrapper_index.h"

#include <functional>

namespace tamrikon {
std::size_t WrapperIndex::KeyHash::operator()(const Key& key) const {
  std::size_t hash = std::hash<std::string_view>()(key.name);
  for (const std::size_t part :
       {static_cast<std::size_t>(key.group), std::hash<const void*>()(key.module),
        std::hash<const void*>()(key.comment)}) {
    hash = (hash ^ part) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 29;
  }
  return hash;
}

WrapperIndex::WrapperIndex(const WrapperCollections& wrappers) {
  const WrapperList* const lists[] = {&wrappers.constants, &wrappers.variables, &wrappers.events,
                                      &wrappers.methods,   &wrappers.gets,      &wrappers.sets,
                                      &wrappers.lets};
  counts_.reserve(wrappers.all.size());
  for (const WrapperList* list : lists) countNames(*list);
  for (const WrapperList* list : lists) countComments(*list);
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

bool WrapperIndex::counts(const Wrapper& wrapper) {
  // An event of a standard module never makes another one's name ambiguous.
  return wrapper.kind() != WrapperKind::event || !isStandardModule(wrapper.source().type());
}

void WrapperIndex::countNames(const WrapperList& list) {
  for (const WrapperRef& wrapper : list) {
    if (counts(*wrapper)) ++counts_[{groupOf(*wrapper), wrapper->name(), nullptr, nullptr}];
  }
}

void WrapperIndex::countComments(const WrapperList& list) {
  for (const WrapperRef& wrapper : list) {
    const Group group = groupOf(*wrapper);
    const std::string_view name = wrapper->name();
    // Most names stand alone, and then nobody asks.
    if (!counts(*wrapper) || countOf({group, name, nullptr, nullptr}) == 1) continue;
    const CommentLines* comment = wrapper->comment.get();
    ++counts_[{group, name, nullptr, comment}];
    if (group != Group::properties) continue;
    ++counts_[{group, name, &wrapper->cmo(), nullptr}];
    ++counts_[{group, name, &wrapper->cmo(), comment}];
  }
}

int WrapperIndex::countOf(const Key& key) const {
  const auto found = counts_.find(key);
  return found == counts_.end() ? 0 : found->second;
}

bool WrapperIndex::needsModuleName(const Wrapper& wrapper) const {
  const Group group = groupOf(wrapper);
  if (group == Group::none) return false;
  const std::string_view name = wrapper.name();
  const CommentLines* comment = wrapper.comment.get();
  const int itself = counts(wrapper) ? 1 : 0;
  int others = countOf({group, name, nullptr, nullptr}) - itself;
  if (others == 0) return false;
  int sharing = countOf({group, name, nullptr, comment}) - itself;
  if (group == Group::properties) {  // those of its own module, itself among them, don't clash
    others -= countOf({group, name, &wrapper.cmo(), nullptr}) - itself;
    sharing -= countOf({group, name, &wrapper.cmo(), comment}) - itself;
  }
  return others > 0 && sharing == 0;
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
    if (wrapper->comment.use_count() == 1) continue;  // nobody shares it
    const std::string_view module = wrapper->source().name();
    modules_[wrapper->comment.get()].add(module, module);
  }
}

const WrapperIndex::ModuleMembers& WrapperIndex::membersOf(const CodeModule& module) const {
  static const ModuleMembers none;
  const auto found = members_.find(&module);
  return found == members_.end() ? none : found->second;
}

std::vector<std::string_view> WrapperIndex::modulesOf(const Wrapper& wrapper) const {
  const auto shared = modules_.find(wrapper.comment.get());
  if (shared == modules_.end()) return {wrapper.source().name()};
  return {shared->second.begin(), shared->second.end()};
}

}  // namespace tamrikon
