// A template, read and expanded.
#include <memory>

#include "fuzz/fuzz_target.h"
#include "fuzz/memory_files.h"
#include "template/expansion_budget.h"
#include "template/macro_table.h"

namespace {

struct GiveUp final : tamrikon::FileErrorReporter {
  tamrikon::FileErrorAnswer reportFileError(const std::string&, std::string_view,
                                            tamrikon::FileError) override {
    return tamrikon::FileErrorAnswer::giveUp;
  }
};

}  // namespace

void fuzz(const std::string& data) {
  using namespace tamrikon;
  test::MemoryFiles disk;
  disk.files["t.tmkt"] = data;
  GiveUp reporter;
  TextFiles files(disk, reporter);
  NoLog log;
  MacroTable table(log);
  // A template that runs away is the same one after some steps as after millions.
  table.setBudget(ExpansionBudget(10'000, std::size_t{1} << 18));
  try {
    table.loadSrc("t.tmkt", true, files);
  } catch (const BudgetUsedUp&) {  // as a replace table without end does
    return;
  }
  table.setMacroValue("MEMBER-NAME", "Add $MEMBER-TEXT$ <&>");
  table.setMacroValue("MEMBER-TEXT", "a\rb $$ $");
  table.setMacroValue("PARAM-LIST",
                      std::make_shared<MacroList>(MacroList{{"Kind\rWhat.\r", "Mode\r"}}));
  for (const char* name : {"tamrik-method-body", "tamrik-index-body", "tamrik-description", "A"}) {
    try {
      table.reuse(table.evaluateMacro(name));
    } catch (const BudgetUsedUp&) {  // as macros without end do
    }
  }
}
