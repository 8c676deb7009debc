#include "template/item_macros.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <utility>

namespace tamrikon {
namespace {

/// Cuts the field before the first CR off `rest`; nothing if there is no CR.
std::optional<std::string_view> cutAtCr(std::string_view& rest) {
  const std::size_t cr = rest.find('\r');
  if (cr == std::string_view::npos) return std::nullopt;
  const std::string_view field = rest.substr(0, cr);
  rest.remove_prefix(cr + 1);
  return field;
}

}  // namespace

ItemMacros::ItemMacros(MacroSlots& slots)
    : first(*slots.intern("LIST-ITEM-FIRST").slot),
      last(*slots.intern("LIST-ITEM-LAST").slot),
      number(*slots.intern("LIST-ITEM-NUMBER").slot),
      label(*slots.intern("LIST-ITEM-LABEL").slot),
      param(*slots.intern("LIST-ITEM-PARAM").slot),
      constant(*slots.intern("LIST-ITEM-CONSTANT").slot),
      value(*slots.intern("LIST-ITEM-VALUE").slot),
      item(*slots.intern("LIST-ITEM").slot),
      location(*slots.intern("LIST-ITEM-LOCATION").slot),
      file(*slots.intern("LIST-ITEM-FILE").slot),
      folder(*slots.intern("LIST-ITEM-FOLDER").slot),
      helpId(*slots.intern("LIST-ITEM-HELPID").slot),
      properties(*slots.intern("PROPS-LINK-LIST").slot),
      methods(*slots.intern("METHODS-LINK-LIST").slot),
      events(*slots.intern("EVENTS-LINK-LIST").slot) {}

ListWalk::ListWalk(std::string_view name, std::shared_ptr<const MacroList> list)
    : form_(formOf(name)), list_(std::move(list)) {}

ListWalk::Form ListWalk::formOf(std::string_view name) {
  if (name == "SET01-LIST" || name == "SET02-LIST" || name == "SET03-LIST") return Form::set;
  if (name == "PARAM-LIST") return Form::param;
  if (name == "CONT-FORMS-LINK-LIST" || name == "CONT-OBJECTS-LINK-LIST") return Form::moduleLink;
  if (name == "GROUP-PROJECTS-LIST") return Form::project;
  return Form::link;
}

std::size_t ListWalk::nextLength() const {
  if (!isSorted()) return list_->texts[done_].size();
  return links_[done_].reference.size() + links_[done_].label.size();
}

bool ListWalk::setNextItem(MacroSlots& slots, const ItemMacros& macros, LinkResolver* resolver) {
  if (done_ == std::numeric_limits<std::int16_t>::max()) return false;
  const std::size_t item = done_++;
  slots.setText(macros.first, item == 0 ? "1" : "");
  slots.setText(macros.last, isAtEnd() ? "1" : "");
  slots.setNumber(macros.number, static_cast<int>(done_));
  if (!isSorted()) return setFields(list_->texts[item], slots, macros);
  setLink(links_[item], slots, macros, resolver);
  return true;
}

bool ListWalk::setFields(std::string_view item, MacroSlots& slots, const ItemMacros& macros) const {
  const std::optional<std::string_view> param = cutAtCr(item);
  if (!param) return false;
  slots.setText(macros.label, item, origin());
  slots.setText(macros.param, *param, origin());
  if (form_ == Form::param) return true;
  for (MacroSlot* macro : {&macros.constant, &macros.value}) {
    const std::optional<std::string_view> field = cutAtCr(item);
    if (!field) return false;
    slots.setText(*macro, *field, origin());
  }
  slots.setText(macros.label, item, origin());
  return true;
}

void ListWalk::setLink(const LinkItem& item, MacroSlots& slots, const ItemMacros& macros,
                       LinkResolver* resolver) const {
  const LinkTarget& target = item.target;
  const bool isFile = isFileReference(item.reference);
  // A link that leads nowhere is warned of here once more, at its place in the order of the walk.
  const bool isDead = !isFile && target.id == TopicId::none && !item.isOfProgram;
  if (isDead && resolver != nullptr) resolver->parseLink(item.reference);
  // What a link leads to is no text, and may stand where the template wants no call's result.
  const std::string_view file = isFile ? target.member : std::string_view();
  slots.setText(macros.file, file, TextOrigin::project);
  slots.setText(macros.item, target.member, TextOrigin::project);
  slots.setText(macros.location, target.module, TextOrigin::project);
  slots.setText(macros.label, item.label, item.isOwnLabel ? origin() : TextOrigin::project);
  slots.setNumber(macros.helpId, target.helpId);
  // Only of a project that has a folder of its own: else a template's own macro stays.
  const std::size_t folderEnd = target.member.rfind('/');
  if (form_ == Form::project && folderEnd != std::string_view::npos) {
    slots.setText(macros.folder, target.member.substr(0, folderEnd), TextOrigin::project);
  }
  if (form_ == Form::moduleLink && target.id != TopicId::none) {
    ModuleLists lists = resolver->moduleLists(target.id);
    slots.setList(macros.properties, std::move(lists.properties));
    slots.setList(macros.methods, std::move(lists.methods));
    slots.setList(macros.events, std::move(lists.events));
  }
}

}  // namespace tamrikon
