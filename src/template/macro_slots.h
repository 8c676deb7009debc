// Where macro values are kept: every name has one slot for the life of the table, so that a text
// that was scanned once finds the macros it calls without a search.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/case_folding.h"
#include "template/comment_macros.h"
#include "template/macro_list.h"
#include "template/macro_text.h"

namespace tamrikon {

/// The names that the expansion itself answers, in capitals only.
enum class MacroKind : std::uint8_t {
  plain,
  nextId,
  counter,
  resetCounter,
  incCounter,
  decCounter,
  replaceOn,
  replaceOff,
  doList,
  endDoList,
  ifNotEmpty,
  elseIf,
  endIfNotEmpty,
};

struct MacroSlot {
  enum class Holds : std::uint8_t { nothing, text, list };
  Holds holds = Holds::nothing;
  std::unique_ptr<MacroText> text;  // set if it holds a text
  std::shared_ptr<const MacroList> list;
};

/// One spelling of a macro's name. All spellings that differ in case share a slot.
struct MacroName {
  std::string text;
  MacroSlot* slot = nullptr;
  MacroKind kind = MacroKind::plain;
  bool isReadOnly = false;
};

bool isReadOnlyName(std::string_view name);

/// Whose words a value is. Where the template limits what comments may call, it decides which calls
/// are made; otherwise all are.
enum class TextOrigin : std::uint8_t {
  program,  // the template or the program: any call
  comment,  // what people wrote for the pages: the calls that the template lists
  project,  // names, declarations and the like: none
};

class MacroSlots {
 public:
  /// Limits what texts of a project call from now on; nothing: not at all.
  void setCommentMacros(std::optional<CommentMacros> macros) { commentMacros_ = std::move(macros); }
  bool limitsComments() const { return commentMacros_.has_value(); }

  /// The record of this spelling, which lives as long as this object.
  const MacroName& intern(std::string_view name);

  /// The same if the macro has a value, otherwise null.
  const MacroName* find(std::string_view name);
  const MacroSlot* findSlot(std::string_view name) const;

  void setText(MacroSlot& slot, std::string_view text, TextOrigin origin = TextOrigin::program);
  /// Sets `lines` with each "$" doubled and each CR as a call of EOL. The calls needn't be looked
  /// for then: a page has one for each line of source code.
  void setLines(MacroSlot& slot, std::string_view lines);
  void setNumber(MacroSlot& slot, int number);
  void setList(MacroSlot& slot, std::shared_ptr<const MacroList> list);
  void unsetAll();

  /// Between these two calls a text with users stays alive even if its slot gets another value.
  void beginUse() { ++runs_; }
  void endUse() {
    if (--runs_ == 0) retired_.clear();
  }

 private:
  void retire(MacroSlot& slot);
  MacroText& newText(MacroSlot& slot);
  void setProjectText(MacroSlot& slot, std::string_view text, TextOrigin origin);

  const MacroName& findOrAdd(std::string_view name);

  std::unordered_map<std::string_view, std::unique_ptr<MacroName>> names_;  // by spelling
  // The last ones that were asked for, by where their names stand: most are literals of the
  // program.
  static constexpr int kRecentBits = 9;
  std::array<const MacroName*, 1 << kRecentBits> recent_{};
  std::unordered_map<std::string, MacroSlot, CaseInsensitiveHash, CaseInsensitiveEqual> slots_;
  std::vector<std::unique_ptr<MacroText>> retired_;
  int runs_ = 0;
  std::optional<CommentMacros> commentMacros_;
};

}  // namespace tamrikon
