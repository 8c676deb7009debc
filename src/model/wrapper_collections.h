// The wrappers of a compile: all of them, and those of each kind, each under its link.
#pragma once

#include <vector>

#include "base/keyed_list.h"
#include "model/wrapper.h"

namespace tamrikon {

/// Wrappers know their keys.
struct LinkKeys {
  void add(std::string_view) {}
  std::string_view of(const WrapperRef& wrapper, std::size_t) const { return wrapper->link(); }
};

using WrapperList = KeyedList<WrapperRef, LinkKeys>;

/// All lists keep the order in which the wrappers were found.
struct WrapperCollections {
  WrapperList all;
  WrapperList modules;
  WrapperList methods;
  WrapperList events;
  WrapperList gets;
  WrapperList lets;
  WrapperList sets;
  WrapperList variables;
  WrapperList constants;

  /// Those in any of the lists, each at the place of its id.
  std::vector<Wrapper*> byId;

  /// Adds it to `all` and to the list of its kind, with an id. A link that is in a list already
  /// stays there as it is: it can be in `all` for a member of another kind.
  void add(const WrapperRef& wrapper) {
    const bool isNewOfKind = listOf(wrapper->kind()).add(wrapper, wrapper->link());
    const bool isNew = all.add(wrapper, wrapper->link());
    if (!isNewOfKind && !isNew) return;
    byId.push_back(wrapper.get());
    wrapper->id = static_cast<TopicId>(byId.size());
  }

  void clear() { *this = WrapperCollections(); }

  WrapperList& listOf(WrapperKind kind) {
    switch (kind) {
      case WrapperKind::method: return methods;
      case WrapperKind::event: return events;
      case WrapperKind::propGet: return gets;
      case WrapperKind::propLet: return lets;
      case WrapperKind::propSet: return sets;
      case WrapperKind::variable: return variables;
      case WrapperKind::constant: return constants;
      case WrapperKind::module: break;
    }
    return modules;
  }
};

/// The wrapper of that number, which isn't none.
inline Wrapper& wrapperOf(const WrapperCollections& wrappers, TopicId id) {
  return *wrappers.byId[static_cast<std::size_t>(id) - 1];
}

/// The wrapper under `link`, or null.
inline Wrapper* findWrapper(const WrapperList& list, std::string_view link) {
  const WrapperRef* found = list.find(link);
  return found == nullptr ? nullptr : found->get();
}

}  // namespace tamrikon
