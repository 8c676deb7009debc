// The wrappers of a compile: all of them, and those of each kind, each under its link.
#pragma once

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

  /// Adds it to `all` and to the list of its kind. A link that is there already stays as it is.
  void add(const WrapperRef& wrapper) {
    listOf(wrapper->kind()).add(wrapper, wrapper->link());
    all.add(wrapper, wrapper->link());
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

/// The wrapper under `link`, or null.
inline Wrapper* findWrapper(const WrapperList& list, std::string_view link) {
  const WrapperRef* found = list.find(link);
  return found == nullptr ? nullptr : found->get();
}

}  // namespace tamrikon
