#include "dialogs/show_documentation.h"

#include "template/expansion_budget.h"

namespace tamrikon {

bool showDocumentation(store* compiled, Prompter& prompter) {
  const std::string title = "Error while showing documentation";
  std::string file;
  try {
    if (compiled != nullptr) file = compiled->helpFile();
  } catch (const BudgetUsedUp& usedUp) {
    prompter.messageBox({title, std::string(usedUp.what()) + "."});
    return false;
  }
  return prompter.openDocument(file, {title, "Cannot show the \"" + file + "\" file"});
}

}  // namespace tamrikon
