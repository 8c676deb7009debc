#include "template/macro_table.h"

#include <cstddef>
#include <utility>

#include "base/text.h"
#include "template/expansion.h"
#include "template/template_loader.h"

namespace tamrikon {
namespace {

std::string asUnknown(std::string_view name) {
  return std::string("$").append(name).append("$");
}

/// Makes each "$$" of `text` one "$".
void undoubleDollars(std::string& text) {
  std::size_t pair = text.find("$$");
  if (pair == std::string::npos) return;
  std::size_t length = pair;
  while (pair != std::string::npos) {
    const std::size_t start = pair + 1;  // keeps the second "$"
    pair = text.find("$$", start + 1);
    const std::size_t end = pair == std::string::npos ? text.size() : pair;
    std::char_traits<char>::move(text.data() + length, text.data() + start, end - start);
    length += end - start;
  }
  text.resize(length);
}

/// The result of a load that ends with this answer to a file error; nothing if it goes on.
std::optional<int> endOfLoad(FileErrorAnswer answer) {
  if (answer == FileErrorAnswer::giveUp) return 2;
  if (answer == FileErrorAnswer::fail) return 3;
  return std::nullopt;
}

}  // namespace

struct MacroTable::Memory {
  explicit Memory(MessageLog& log) : state(log) {}

  ExpansionState state;
  ExpansionBudget budget;
  bool isCleared = false;
};

MacroTable::MacroTable(MessageLog& log) : memory_(std::make_unique<Memory>(log)) {}

MacroTable::~MacroTable() = default;

int MacroTable::loadSrc(const std::string& file, bool silent, TextFiles& files) {
  ExpansionState& state = memory_->state;
  memory_->isCleared = false;
  state.slots.unsetAll();
  state.slots.setCommentMacros(std::nullopt);
  std::string text;
  const int failure = files.readTextFile(file, silent, text);
  if (failure != 0) return failure;
  TemplateReader reader(text, file, state.log);
  TemplateDefinition definition;
  while (reader.next(definition)) {
    if (addMacro(definition.name, definition.value)) continue;
    const std::string twice = "The macro " + std::string(definition.name) + " is defined on line " +
                              std::to_string(firstDefinition(text, definition.name)) +
                              " and again on line " + std::to_string(definition.line) +
                              "; the first one counts.";
    const auto end = endOfLoad(files.ask(file, "reading", FileError::keyExists, silent, twice));
    if (end) return *end;
  }
  if (const auto end = addCharacterMacros(file, text, silent, files)) return *end;
  if (const MacroSlot* slot = state.slots.findSlot("COMMENT-MACROS")) {
    state.slots.setCommentMacros(CommentMacros(slot->text->text));
  }
  state.replaceTable = ReplaceTable();
  if (const MacroSlot* slot = state.slots.findSlot("REPLACE-TABLE")) {
    state.replaceTable = ReplaceTable(parseReplaceMacro(slot->text->text));
  }
  return 0;
}

/// Adds CHR0 to CHR255. A template that defines one of them makes this fail each time it is tried
/// again, so the answer alone ends it.
std::optional<int> MacroTable::addCharacterMacros(const std::string& file, std::string_view text,
                                                  bool silent, TextFiles& files) {
  for (int code = 0; code <= 255; ++code) {
    const char byte = static_cast<char>(code);
    const std::string character = files.codePage().decode(std::string_view(&byte, 1));
    const std::string name = "CHR" + std::to_string(code);
    while (!addMacro(name, character)) {
      const std::string taken = "The macro " + name + " is the program's own; line " +
                                std::to_string(firstDefinition(text, name)) + " defines it.";
      const FileErrorAnswer answer =
          files.ask(file, "reading", FileError::keyExists, silent, taken);
      if (const auto end = endOfLoad(answer)) return end;
      if (answer == FileErrorAnswer::goOn) break;
    }
  }
  return std::nullopt;
}

/// False if there is a macro of that name.
bool MacroTable::addMacro(std::string_view name, std::string_view text) {
  MacroSlots& slots = memory_->state.slots;
  MacroSlot& slot = *slots.intern(name).slot;
  if (slot.holds != MacroSlot::Holds::nothing) return false;
  slots.setText(slot, text);
  slot.text->isOfTemplate = true;
  return true;
}

std::string MacroTable::evaluateMacro(std::string_view macroName, bool isNestedEvaluation) {
  const MacroName* name = memory_->state.slots.find(macroName);
  if (name == nullptr) return asUnknown(macroName);
  if (name->slot->holds == MacroSlot::Holds::list) return std::string(macroName);
  std::string result = Expansion(memory_->state, memory_->budget).evaluate(*name);
  if (!isNestedEvaluation) undoubleDollars(result);
  return result;
}

void MacroTable::reuse(std::string&& result) {
  memory_->state.spare = std::move(result);
}

std::string MacroTable::getMacroBody(std::string_view macroName) const {
  const MacroSlot* slot = memory_->state.slots.findSlot(macroName);
  if (slot == nullptr) return asUnknown(macroName);
  if (slot->holds != MacroSlot::Holds::text) return std::string(macroName);
  return slot->text->given.empty() ? slot->text->text : slot->text->given;
}

void MacroTable::setMacroValue(std::string_view macro, std::string_view text) {
  if (memory_->isCleared) return;
  MacroSlots& slots = memory_->state.slots;
  slots.setText(*slots.intern(macro).slot, text);
}

void MacroTable::setCommentText(std::string_view macro, std::string_view text) {
  if (memory_->isCleared) return;
  MacroSlots& slots = memory_->state.slots;
  slots.setText(*slots.intern(macro).slot, text, TextOrigin::comment);
}

void MacroTable::setProjectText(std::string_view macro, std::string_view text) {
  if (memory_->isCleared) return;
  MacroSlots& slots = memory_->state.slots;
  slots.setText(*slots.intern(macro).slot, text, TextOrigin::project);
}

bool MacroTable::limitsComments() const {
  return memory_->state.slots.limitsComments();
}

void MacroTable::setMacroLines(std::string_view macro, std::string_view lines) {
  if (memory_->isCleared) return;
  MacroSlots& slots = memory_->state.slots;
  slots.setLines(*slots.intern(macro).slot, lines);
}

void MacroTable::setMacroValue(std::string_view macro, std::shared_ptr<const MacroList> list) {
  if (memory_->isCleared) return;
  MacroSlots& slots = memory_->state.slots;
  slots.setList(*slots.intern(macro).slot, std::move(list));
}

bool MacroTable::isReadOnlyMacro(std::string_view name) {
  return isReadOnlyName(name);
}

std::vector<std::string> MacroTable::parseReplaceMacro(std::string_view macro) {
  Expansion expansion(memory_->state, memory_->budget);
  std::vector<std::string> words;
  for (const std::string_view word : split(macro, ' ')) {
    words.push_back(expansion.expandText(word));
  }
  return words;
}

void MacroTable::clear() {
  memory_->state.slots.unsetAll();
  memory_->isCleared = true;
}

void MacroTable::setBudget(const ExpansionBudget& budget) {
  memory_->budget = budget;
}

void MacroTable::setLinkResolver(LinkResolver* resolver) {
  memory_->state.resolver = resolver;
}

void MacroTable::resetRunState() {
  memory_->state.nextId = 1;
  memory_->state.counter = 1;
  memory_->state.replaceOn = false;
}

}  // namespace tamrikon
