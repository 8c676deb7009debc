// The LIST-ITEM-... macros, which each step of a DOLIST sets.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "template/link_items.h"
#include "template/link_resolver.h"
#include "template/macro_slots.h"

namespace tamrikon {

/// The slots of the macros, looked up once.
struct ItemMacros {
  explicit ItemMacros(MacroSlots& slots);

  MacroSlot& first;
  MacroSlot& last;
  MacroSlot& number;
  MacroSlot& label;
  MacroSlot& param;
  MacroSlot& constant;
  MacroSlot& value;
  MacroSlot& item;
  MacroSlot& location;
  MacroSlot& file;
  MacroSlot& folder;
  MacroSlot& helpId;
  MacroSlot& properties;
  MacroSlot& methods;
  MacroSlot& events;
};

/// A list on its walk through a DOLIST. How its items read depends on the list's name.
class ListWalk {
 public:
  ListWalk(std::string_view name, std::shared_ptr<const MacroList> list);

  /// Whether the walk goes over a sorted copy, which sort() makes. sort() fails if an item lacks
  /// its CR.
  bool isSorted() const { return form_ != Form::set && form_ != Form::param; }
  bool sort(LinkResolver* resolver) { return links_.sort(*list_, resolver); }

  std::size_t size() const { return list_->size(); }
  bool isAtEnd() const { return done_ == size(); }
  /// The length of the next item in bytes, roughly.
  std::size_t nextLength() const;

  /// Sets the macros of the next item. False if the item lacks a CR or its number doesn't fit
  /// into 16 bits; some of the macros are set then.
  bool setNextItem(MacroSlots& slots, const ItemMacros& macros, LinkResolver* resolver);

 private:
  enum class Form { set, param, link, moduleLink, project };
  static Form formOf(std::string_view name);

  bool setFields(std::string_view item, MacroSlots& slots, const ItemMacros& macros) const;
  void setLink(const LinkItem& item, MacroSlots& slots, const ItemMacros& macros,
               LinkResolver* resolver) const;

  /// Whose words the texts of the list are.
  TextOrigin origin() const {
    return list_->isGenerated ? TextOrigin::project : TextOrigin::comment;
  }

  Form form_;
  std::shared_ptr<const MacroList> list_;
  LinkItems links_;
  std::size_t done_ = 0;  // items that were set
};

}  // namespace tamrikon
