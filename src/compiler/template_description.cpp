#include "compiler/template_description.h"

#include <algorithm>

#include "base/paths.h"
#include "base/text.h"
#include "compiler/store.h"
#include "template/expansion_budget.h"

namespace tamrikon {
namespace {

// Some sentences: a template that runs away mustn't freeze the dialog that lists it.
constexpr std::size_t kMaxCalls = 10'000;
constexpr std::size_t kMaxText = std::size_t{1} << 20;

}  // namespace

std::string readTemplateDescription(Session& session, const std::string& path) {
  session.currentStore.reset();
  CompileListener nobody;
  store described(session.settings, nobody);
  described.macros().setBudget(ExpansionBudget(kMaxCalls, kMaxText));
  std::string text;
  try {
    if (described.loadSrc(path, true, session.files) != 0) {
      return "Cannot read descriptionfrom " + path + "file.";
    }
    const std::string folder(withoutTrailingSeparator(session.settings.outputPath));
    described.macros().setMacroValue("TAMRIK-PATH", session.addInFolder);
    described.macros().setMacroValue("OUTPUT-PATH", folder);
    if (!folder.empty()) session.settings.outputPath = joinPath(folder, "");
    text = described.evaluateMacro("tamrik-description");
  } catch (const BudgetUsedUp& usedUp) {
    return std::string(usedUp.what()) + ".";
  }
  std::replace(text.begin(), text.end(), '\r', ' ');
  return text;
}

}  // namespace tamrikon
