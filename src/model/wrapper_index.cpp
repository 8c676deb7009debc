#include "model/wrapper_index.h"

#include <algorithm>
#include <functional>
#include <unordered_set>

namespace tamrikon {
namespace {

/// Views of names that their wrappers hold.
using NameSet = std::unordered_set<std::string_view, CaseInsensitiveHash, CaseInsensitiveEqual>;

/// Adds those whose name the module's list doesn't hold yet.
void addByName(const WrapperList& from, std::unordered_map<const CodeModule*, NameSet>& names,
               const std::function<std::vector<Wrapper*>&(const CodeModule*)>& listOf) {
  for (const WrapperRef& wrapper : from) {
    const CodeModule* module = &wrapper->cmo();
    if (names[module].insert(wrapper->name()).second) listOf(module).push_back(wrapper.get());
  }
}

}  // namespace

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
  for (const WrapperList* list :
       {&wrappers.constants, &wrappers.variables, &wrappers.events, &wrappers.methods,
        &wrappers.gets, &wrappers.sets, &wrappers.lets}) {
    count(*list);
  }
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

void WrapperIndex::count(const WrapperList& list) {
  for (const WrapperRef& wrapper : list) {
    const Group group = groupOf(*wrapper);
    // An event of a standard module never makes another one's name ambiguous.
    if (group == Group::events && isStandardModule(wrapper->source().type())) continue;
    const std::string_view name = wrapper->name();
    const CommentLines* comment = wrapper->comment.get();
    ++counts_[{group, name, nullptr, nullptr}];
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
  int others = countOf({group, name, nullptr, nullptr});
  int sharing = countOf({group, name, nullptr, comment});
  if (group == Group::properties) {
    others -= countOf({group, name, &wrapper.cmo(), nullptr});
    sharing -= countOf({group, name, &wrapper.cmo(), comment});
  } else if (group != Group::events || !isStandardModule(wrapper.source().type())) {
    --others;  // the wrapper itself
    --sharing;
  }
  return others > 0 && sharing == 0;
}

void WrapperIndex::collectMembers(const WrapperCollections& wrappers) {
  std::unordered_map<const CodeModule*, NameSet> names;
  for (const WrapperList* list : {&wrappers.gets, &wrappers.sets, &wrappers.lets}) {
    addByName(
        *list, names, [&](const CodeModule* m) -> auto& { return members_[m].properties; });
  }
  names.clear();
  addByName(
      wrappers.methods, names, [&](const CodeModule* m) -> auto& { return members_[m].methods; });
  names.clear();
  addByName(
      wrappers.events, names, [&](const CodeModule* m) -> auto& { return members_[m].events; });
}

void WrapperIndex::collectModules(const WrapperList& all) {
  using OwnedNames = std::unordered_set<std::string, CaseInsensitiveHash, CaseInsensitiveEqual>;
  std::unordered_map<const CommentLines*, OwnedNames> names;
  for (const WrapperRef& wrapper : all) {
    const std::string& module = wrapper->source().name();
    std::vector<std::string>& modules = modules_[wrapper->comment.get()];
    if (!modules.empty()) {  // few comments are shared: only those need a set of names
      OwnedNames& seen = names[wrapper->comment.get()];
      seen.insert(modules.front());
      if (!seen.insert(module).second) continue;
    }
    modules.push_back(module);
  }
}

const WrapperIndex::ModuleMembers& WrapperIndex::membersOf(const CodeModule& module) const {
  static const ModuleMembers none;
  const auto found = members_.find(&module);
  return found == members_.end() ? none : found->second;
}

const std::vector<std::string>& WrapperIndex::modulesOf(const CommentLines* comment) const {
  static const std::vector<std::string> none;
  const auto found = modules_.find(comment);
  return found == modules_.end() ? none : found->second;
}

}  // namespace tamrikon
