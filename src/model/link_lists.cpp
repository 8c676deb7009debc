#include "model/link_lists.h"

namespace tamrikon {
namespace {

LinkListRef linksOf(const std::vector<Wrapper*>& members) {
  auto list = std::make_shared<MacroList>();
  list->topics.reserve(members.size());
  for (const Wrapper* member : members) list->topics.push_back({member->id});
  return list;
}

}  // namespace

const WrapperIndex& LinkLists::index() {
  if (!index_) index_ = std::make_unique<WrapperIndex>(wrappers_);
  return *index_;
}

LinkListRef LinkLists::getAppliesList(const Wrapper& wrapper) {
  const KeyedList<std::string_view>* const modules = index().sharingModules(wrapper);
  if (modules == nullptr) return ownModuleList(wrapper);
  auto list = std::make_shared<MacroList>();
  for (const std::string_view module : *modules) list->topics.push_back(moduleItem(module));
  return list;
}

TopicItem LinkLists::moduleItem(std::string_view name) const {
  const Wrapper* module = findWrapper(wrappers_.all, name);
  return {module == nullptr ? TopicId::none : module->id};
}

/// One for all members of a module, whose pages mostly come one after the other.
LinkListRef LinkLists::ownModuleList(const Wrapper& wrapper) {
  if (ownModule_ == &wrapper.cmo()) return ownModuleList_;
  auto list = std::make_shared<MacroList>();
  list->topics.push_back(moduleItem(wrapper.source().name()));
  ownModule_ = &wrapper.cmo();
  ownModuleList_ = std::move(list);
  return ownModuleList_;
}

LinkListRef LinkLists::getPropsList(const Wrapper& wrapper) {
  return linksOf(index().membersOf(wrapper.cmo()).properties);
}

LinkListRef LinkLists::getMethodsList(const Wrapper& wrapper) {
  return linksOf(index().membersOf(wrapper.cmo()).methods);
}

LinkListRef LinkLists::getEventsList(const Wrapper& wrapper) {
  return linksOf(index().membersOf(wrapper.cmo()).events);
}

std::string LinkLists::indexLabel(const Wrapper& wrapper) {
  const std::string& module = wrapper.source().name();
  const std::string_view word = wrapper.traits().word;
  std::string label;
  label.reserve(wrapper.name().size() + module.size() + word.size() + 3);
  label = wrapper.name();
  if (wrapper.needsModule) label.append(" (").append(module).append(")");
  return label.append(word);
}

LinkListRef LinkLists::makeLinkList(const std::vector<WrapperRef>& wrappers) {
  auto list = std::make_shared<MacroList>();
  list->topics.reserve(wrappers.size());
  for (const WrapperRef& wrapper : wrappers) {
    list->topics.push_back({wrapper->id, true, wrapper->traits().word});
  }
  return list;
}

}  // namespace tamrikon
