#include "model/link_lists.h"

namespace tamrikon {
namespace {

LinkListRef linksOf(const std::vector<Wrapper*>& members) {
  auto items = std::make_shared<MacroList>();
  items->reserve(members.size());
  for (const Wrapper* member : members) items->push_back(member->link() + '\r');
  return items;
}

}  // namespace

const WrapperIndex& LinkLists::index() {
  if (!index_) index_ = std::make_unique<WrapperIndex>(wrappers_);
  return *index_;
}

LinkListRef LinkLists::getAppliesList(const Wrapper& wrapper) {
  auto items = std::make_shared<MacroList>();
  for (const std::string_view module : index().modulesOf(wrapper)) {
    items->emplace_back(module).push_back('\r');
  }
  return items;
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

std::string LinkLists::linkListItem(const Wrapper& wrapper) {
  constexpr std::size_t kExtras = 32;  // for the module and the word for the kind
  std::string item;
  item.reserve(wrapper.link().size() + wrapper.name().size() + kExtras);
  item.append(wrapper.link()).append("\r").append(wrapper.name());
  if (wrapper.needsModule) item.append(" (").append(wrapper.source().name()).append(")");
  return item;
}

LinkListRef LinkLists::makeLinkList(const std::vector<WrapperRef>& wrappers) {
  auto items = std::make_shared<MacroList>();
  items->reserve(wrappers.size());
  for (const WrapperRef& wrapper : wrappers) {
    items->push_back(linkListItem(*wrapper).append(wrapper->traits().word));
  }
  return items;
}

}  // namespace tamrikon
