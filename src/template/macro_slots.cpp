#include "template/macro_slots.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <utility>

#include "base/text.h"

namespace tamrikon {
namespace {

constexpr std::string_view kReadOnlyNames[] = {
    "TAMRIK-PATH",
    "OUTPUT-PATH",
    "PROJECT-NAME",
    "TITLE-PAGE-TEXT",
    "NEXT-ID",
    "COUNTER",
    "RESET-COUNTER",
    "INC-COUNTER",
    "DEC-COUNTER",
    "SEE-LINK-LIST",
    "EXAMPLE-LINK-LIST",
    "PROPS-LINK-LIST",
    "METHODS-LINK-LIST",
    "EVENTS-LINK-LIST",
    "APPLIES-LINK-LIST",
    "INDEX-LINK-LIST",
    "CONT-FORMS-LINK-LIST",
    "CONT-OBJECTS-LINK-LIST",
    "CONT-STDMODULES-LINK-LIST",
    "CONT-METHODS-LINK-LIST",
    "CONT-FUNCTIONS-LINK-LIST",
    "CONT-PROPS-LINK-LIST",
    "CONT-EVENTS-LINK-LIST",
    "CONT-VARS-LINK-LIST",
    "CONT-CONSTANTS-LINK-LIST",
    "GROUP-PROJECTS-LIST",
    "PARAM-LIST",
    "SET01-LIST",
    "SET02-LIST",
    "SET03-LIST",
    "LIST-ITEM-NUMBER",
    "LIST-ITEM-LABEL",
    "LIST-ITEM-FIRST",
    "LIST-ITEM-LAST",
    "LIST-ITEM",
    "LIST-ITEM-LOCATION",
    "LIST-ITEM-FILE",
    "LIST-ITEM-HELPID",
    "LIST-ITEM-PARAM",
    "LIST-ITEM-CONSTANT",
    "LIST-ITEM-VALUE",
    "MEMBER-NAME",
    "MEMBER-MODULE",
    "MEMBER-DESCRIPTION",
    "MEMBER-REMARKS",
    "MEMBER-RETURN",
    "MEMBER-NEEDS-MODULE",
    "MEMBER-AUTHOR",
    "MEMBER-REVISION",
    "MEMBER-VERSION",
    "MEMBER-USER1",
    "MEMBER-USER2",
    "MEMBER-USER3",
    "MEMBER-USER4",
    "MEMBER-USER5",
    "MEMBER-PUBLIC",
    "MEMBER-PRIVATE",
    "MEMBER-FRIEND",
    "MEMBER-DECLARATION",
    "MEMBER-SOURCECODE",
};
static_assert(std::size(kReadOnlyNames) == 60);

struct AnsweredName {
  std::string_view name;
  MacroKind kind;
};

constexpr AnsweredName kAnsweredNames[] = {
    {"NEXT-ID", MacroKind::nextId},
    {"COUNTER", MacroKind::counter},
    {"RESET-COUNTER", MacroKind::resetCounter},
    {"INC-COUNTER", MacroKind::incCounter},
    {"DEC-COUNTER", MacroKind::decCounter},
    {"REPLACE-ON", MacroKind::replaceOn},
    {"REPLACE-OFF", MacroKind::replaceOff},
    {"DOLIST", MacroKind::doList},
    {"END-DOLIST", MacroKind::endDoList},
    {"IFNOTEMPTY", MacroKind::ifNotEmpty},
    {"ELSEIF", MacroKind::elseIf},
    {"END-IFNOTEMPTY", MacroKind::endIfNotEmpty},
};

MacroKind kindOf(std::string_view name) {
  const auto* found =
      std::find_if(std::begin(kAnsweredNames), std::end(kAnsweredNames),
                   [&](const AnsweredName& answered) { return answered.name == name; });
  return found == std::end(kAnsweredNames) ? MacroKind::plain : found->kind;
}

}  // namespace

bool isReadOnlyName(std::string_view name) {
  return std::find(std::begin(kReadOnlyNames), std::end(kReadOnlyNames), name) !=
         std::end(kReadOnlyNames);
}

const MacroName& MacroSlots::intern(std::string_view name) {
  const std::uint64_t address = reinterpret_cast<std::uintptr_t>(name.data());
  const MacroName*& recent = recent_[address * 0x9E3779B97F4A7C15U >> (64 - kRecentBits)];
  if (recent == nullptr || recent->text != name) recent = &findOrAdd(name);
  return *recent;
}

const MacroName& MacroSlots::findOrAdd(std::string_view name) {
  const auto found = names_.find(name);
  if (found != names_.end()) return *found->second;
  auto slot = slots_.find(name);
  if (slot == slots_.end()) slot = slots_.try_emplace(std::string(name)).first;
  auto record = std::make_unique<MacroName>(
      MacroName{std::string(name), &slot->second, kindOf(name), isReadOnlyName(name)});
  const std::string_view key = record->text;
  return *names_.emplace(key, std::move(record)).first->second;
}

const MacroName* MacroSlots::find(std::string_view name) {
  const auto found = names_.find(name);
  if (found == names_.end()) return findSlot(name) != nullptr ? &intern(name) : nullptr;
  return found->second->slot->holds == MacroSlot::Holds::nothing ? nullptr : found->second.get();
}

const MacroSlot* MacroSlots::findSlot(std::string_view name) const {
  const auto found = slots_.find(name);
  if (found == slots_.end() || found->second.holds == MacroSlot::Holds::nothing) return nullptr;
  return &found->second;
}

void MacroSlots::retire(MacroSlot& slot) {
  if (slot.text && slot.text->users > 0) retired_.push_back(std::move(slot.text));
}

/// The slot's text, which is to be filled.
inline MacroText& MacroSlots::newText(MacroSlot& slot) {
  retire(slot);
  if (!slot.text) slot.text = std::make_unique<MacroText>();
  slot.text->isScanned = false;
  slot.text->isOfTemplate = false;
  slot.text->isFromProject = false;
  slot.text->given.clear();
  slot.list.reset();
  slot.holds = MacroSlot::Holds::text;
  return *slot.text;
}

void MacroSlots::setText(MacroSlot& slot, std::string_view text, TextOrigin origin) {
  if (origin != TextOrigin::program && limitsComments()) {
    setProjectText(slot, text, origin);
    return;
  }
  // From page to page most values are as they were, and what was found in them with them.
  const bool isKept = slot.holds == MacroSlot::Holds::text && slot.text->text == text;
  if (!isKept || slot.text->isFromProject) newText(slot).text = text;
}

/// Sets a text that calls what comments may, or nothing.
void MacroSlots::setProjectText(MacroSlot& slot, std::string_view text, TextOrigin origin) {
  const bool hasDollars = text.find('$') != std::string_view::npos;
  const bool isKept = slot.holds == MacroSlot::Holds::text && slot.text->text == text;
  if (isKept && !hasDollars && slot.text->isFromProject) return;
  MacroText& value = newText(slot);
  value.isFromProject = true;
  if (!hasDollars) {
    value.text = text;
    value.beginScan();  // there is nothing to find
    return;
  }
  value.given = text;
  value.text =
      origin == TextOrigin::comment ? commentMacros_->withListedCalls(text) : doubleDollars(text);
}

void MacroSlots::setLines(MacroSlot& slot, std::string_view lines) {
  constexpr std::string_view kEol = "$EOL$";
  const MacroName& eol = intern(kEol.substr(1, kEol.size() - 2));
  MacroText& value = newText(slot);
  value.isFromProject = limitsComments();
  value.text.clear();
  value.beginScan();
  std::string doubled;
  if (lines.find('$') != std::string_view::npos) lines = doubled = doubleDollars(lines);
  for (;;) {
    const std::size_t end = lines.find('\r');
    value.text += lines.substr(0, end);
    if (end == std::string_view::npos) return;
    lines.remove_prefix(end + 1);
    const auto start = static_cast<TextIndex>(value.text.size());
    value.text += kEol;
    value.tokens.push_back({start, static_cast<TextIndex>(value.text.size()), &eol});
  }
}

void MacroSlots::setNumber(MacroSlot& slot, int number) {
  std::array<char, 16> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  setText(slot, {digits.data(), static_cast<std::size_t>(end.ptr - digits.data())});
}

void MacroSlots::setList(MacroSlot& slot, std::shared_ptr<const MacroList> list) {
  retire(slot);
  slot.text.reset();
  slot.list = std::move(list);
  slot.holds = MacroSlot::Holds::list;
}

void MacroSlots::unsetAll() {
  for (auto& [name, slot] : slots_) {
    retire(slot);
    slot = MacroSlot();
  }
}

}  // namespace tamrikon
