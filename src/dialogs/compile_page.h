// The tab "Compile": what is documented, and of which modules.
#pragma once

#include "dialogs/module_selection.h"
#include "toolkit/buttons.h"
#include "toolkit/containers.h"
#include "toolkit/dialog.h"
#include "toolkit/list_controls.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class CompilePage {
  Dialog& dialog_;  // before the controls, which are listed there

 public:
  explicit CompilePage(Dialog& dialog);

  Layout layout();

  /// Shows `all` modules in the list, with `chosen` ones checked.
  void showModules(const KeyedList<CodeModule*>& all, const KeyedList<CodeModule*>& chosen);

  /// The chosen modules by name, in the order in which they were chosen.
  KeyedList<CodeModule*> chosenModules() const { return modules_.list(); }

  Frame Frame1{dialog_, "Frame1", "What To Compile"};
  CheckBox Check1{dialog_, "Check1", "Non-commented",
                  "Compile also members that are not commented using special Tamrikon comments"};
  CheckBox Check2{dialog_, "Check2", "Public", "Compile public members"};
  CheckBox Check3{dialog_, "Check3", "Private", "Compile private members"};
  CheckBox Check4{dialog_, "Check4", "Friend", "Compile friend members"};
  CheckBox Check5{dialog_, "Check5", "Classes", "Compile topics for objects (classes)"};
  CheckBox Check6{dialog_, "Check6", "Forms", "Compile topics for forms"};
  CheckBox Check7{dialog_, "Check7", "Standard Modules", "Compile topics for standard modules"};
  CheckBox Check8{dialog_, "Check8", "Methods/Functions",
                  "Compile topics for methods and functions"};
  CheckBox Check9{dialog_, "Check9", "Properties", "Compile topics for properties"};
  CheckBox Check10{dialog_, "Check10", "Events", "Compile topics for events"};
  CheckBox Check18{dialog_, "Check18", "Variables", "Compile topics for variables"};
  CheckBox Check19{dialog_, "Check19", "Constants", "Compile topics for constants"};
  CheckBox Check17{dialog_, "Check17", "Add Help Context IDs", "Generate context sensitive help"};
  CheckBox Check29{dialog_, "Check29", "Write to \"Description\" attribute",
                   "Automatically write member's description to hidden \"Description\" attribute "
                   "(it will then appear in Properties and Object Browser)"};

  Frame Frame2{dialog_, "Frame2", "Modules"};
  Label Label1{dialog_, "Label1", "Select the modules to document."};
  Label Label2{dialog_, "Label2"};  // the project
  CheckList ListView1{dialog_, "ListView1"};
  CommandButton Command2{dialog_, "Command2", "Select All"};
  CommandButton Command3{dialog_, "Command3", "Deselect All"};

 private:
  void setChosen(std::size_t index, bool chosen);
  void setAllChosen(bool chosen);

  ModuleSelection modules_;  // numbered as the items of ListView1
};

}  // namespace tamrikon
