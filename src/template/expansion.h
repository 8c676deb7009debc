// The expansion of macro texts: one pass from left to right that only ever appends to its result.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/message_log.h"
#include "template/expansion_budget.h"
#include "template/item_macros.h"
#include "template/link_resolver.h"
#include "template/macro_slots.h"
#include "template/macro_text.h"
#include "template/replace_table.h"

namespace tamrikon {

/// A text, or part of a text, in work.
struct ExpansionFrame {
  enum class Role : std::uint8_t { macro, branch, listBody };
  MacroText* source;
  TextIndex offset;  // how far it is expanded
  TextIndex end;     // of the part
  TextIndex token;   // the next one
  Role role;
  bool translate;
};

/// The list that a frame is the body of.
struct ListFrame {
  ListWalk walk;
  std::size_t resultStart;  // where the construct's value begins in the result
  TextIndex bodyStart;
  TextIndex bodyEnd;
  TextIndex bodyToken;
};

/// What the expansions of one macro table share.
struct ExpansionState {
  explicit ExpansionState(MessageLog& messageLog) : log(messageLog), items(slots) {}

  MessageLog& log;
  LinkResolver* resolver = nullptr;
  MacroSlots slots;
  ItemMacros items;
  ReplaceTable replaceTable;
  std::int64_t nextId = 1;
  std::int64_t counter = 1;
  bool replaceOn = false;
  // Memory for the next expansion.
  std::string spare;
  std::vector<ExpansionFrame> spareFrames;
  std::vector<ListFrame> spareLists;
};

/// One outermost call, with its budget. The texts in work stand on a stack of its own, so that no
/// nesting of macros and constructs can exhaust the program's.
class Expansion {
  using Frame = ExpansionFrame;

 public:
  /// `table` is handed to the link resolver. Both must outlive this object.
  explicit Expansion(ExpansionState& state, const ExpansionBudget& budget = {})
      : state_(state), budget_(budget) {
    state_.slots.beginUse();
    frames_.swap(state_.spareFrames);
    lists_.swap(state_.spareLists);
  }
  ~Expansion() {
    for (const Frame& frame : frames_) {
      if (frame.role == Frame::Role::macro) --frame.source->users;
    }
    state_.slots.endUse();
    frames_.clear();
    lists_.clear();
    frames_.swap(state_.spareFrames);
    lists_.swap(state_.spareLists);
  }
  Expansion(const Expansion&) = delete;
  Expansion& operator=(const Expansion&) = delete;

  /// What a call of `name` gives, each "$$" still doubled. BudgetUsedUp is thrown where that goes
  /// beyond the budget.
  std::string evaluate(const MacroName& name);

  /// `text` with its macros expanded, without a translation of its own.
  std::string expandText(std::string_view text);

 private:
  void run();
  const MacroToken* nextToken(const Frame& frame);
  void answer(const MacroName& name);
  void call(const MacroName& name);
  void begin(MacroText& text, bool translate);
  void leave();
  void appendLiteral(std::string_view text, bool translate);
  void appendUnknown(std::string_view name);
  void log(const Diagnostic& diagnostic);
  void logWrongName(const MacroText& source, const MacroToken& token);
  [[noreturn]] void endAt(std::string_view call) const;

  // The two list macros, in list_macros.cpp.
  void expandConstruct(const MacroName& tag);
  static void endPart(Frame& frame);
  const MacroName* findArgument(const Construct& construct, const MacroName& tag);
  bool findEndMarker(const Construct& construct, const MacroName& tag);
  void reportSearch(const Construct& construct, bool isFound);
  void expandIfNotEmpty(const Construct& construct, const MacroSlot& argument);
  void expandDoList(const Construct& construct, const MacroName& argument);
  void nextListItem();

  ExpansionState& state_;
  ExpansionBudget budget_;
  std::string_view outermost_ = "REPLACE-TABLE";  // whose expansion this is
  std::string result_;
  std::vector<Frame> frames_;
  std::vector<ListFrame> lists_;  // one for each frame that is a list's body
  int depth_ = 0;                 // macros on the stack
};

}  // namespace tamrikon
