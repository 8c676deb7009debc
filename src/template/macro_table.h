// The macros of a template and of the compile, and their expansion to finished text.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/message_log.h"
#include "platform/text_files.h"
#include "template/expansion_budget.h"
#include "template/link_resolver.h"
#include "template/macro_list.h"

namespace tamrikon {

/// One namespace of macros, whose names ignore case; a value is a text, kept unexpanded, or a list.
class MacroTable {
 public:
  /// `log` must outlive the table.
  explicit MacroTable(MessageLog& log);
  ~MacroTable();
  MacroTable(const MacroTable&) = delete;
  MacroTable& operator=(const MacroTable&) = delete;

  /// Replaces all macros by those of the template `file`, adds CHR0 to CHR255 and reads the
  /// replace table. 0 if it was loaded, 2 if the user gave up at the file error dialog, 3 for any
  /// other failure; the macros read so far then stay. With `silent` there is no dialog. A name
  /// that is defined twice is a failure; faults of the template's text are only logged. Throws
  /// BudgetUsedUp for a replace table whose expansion has no end.
  int loadSrc(const std::string& file, bool silent, TextFiles& files);

  /// The macro's value, expanded. An unknown macro gives "$NAME$", a list its name. Each "$$" of
  /// the result becomes "$", unless the result goes into another text (`isNestedEvaluation`).
  ///
  /// What one call does is bounded (expansion_budget.h). A nested call that is too deep is answered
  /// like one of an unknown macro, so a macro that calls itself ends; where calls or text grow
  /// beyond all bounds, BudgetUsedUp is thrown.
  std::string evaluateMacro(std::string_view macroName, bool isNestedEvaluation = false);

  /// Takes back a result that nobody needs any more: its memory serves the next one.
  void reuse(std::string&& result);

  /// The unexpanded text as it was set; a list gives its name, an unknown macro "$NAME$".
  std::string getMacroBody(std::string_view macroName) const;

  void setMacroValue(std::string_view macro, std::string_view text);

  /// The same for what people wrote for the pages. If the template has a line COMMENT-MACROS, the
  /// macros listed there are called and each other "$" of `text` is a "$".
  void setCommentText(std::string_view macro, std::string_view text);

  /// The same for names, declarations and the like, which then call nothing.
  void setProjectText(std::string_view macro, std::string_view text);

  /// Whether the template has that line. All text from the project then goes through the replace
  /// table, whatever the name of its macro.
  bool limitsComments() const;

  /// Sets a text that the expansion gives back as it is, but for its CRs: each calls EOL.
  void setMacroLines(std::string_view macro, std::string_view lines);

  /// `list` may be null, which counts as an empty list.
  void setMacroValue(std::string_view macro, std::shared_ptr<const MacroList> list);

  /// Whether the literal text of this macro goes through the replace table; the name's case counts.
  static bool isReadOnlyMacro(std::string_view name);

  /// The words of a replace table, divided by single blanks and each expanded.
  std::vector<std::string> parseReplaceMacro(std::string_view macro);

  /// From here to the next loadSrc() every macro is unknown and none can be set.
  void clear();

  /// What each call may do from now on.
  void setBudget(const ExpansionBudget& budget);

  /// Who resolves the links of list items; must outlive its use. Null: links lead nowhere.
  void setLinkResolver(LinkResolver* resolver);

  /// NEXT-ID and COUNTER begin at 1 again, and the replace table is switched off.
  void resetRunState();

 private:
  bool addMacro(std::string_view name, std::string_view text);
  std::optional<int> addCharacterMacros(const std::string& file, std::string_view text, bool silent,
                                        TextFiles& files);

  struct Memory;
  std::unique_ptr<Memory> memory_;
};

}  // namespace tamrikon
