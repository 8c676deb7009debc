// The tab "Output": the template and the folder of the output.
#pragma once

#include <string>

#include "compiler/session.h"
#include "settings/project_settings.h"
#include "toolkit/buttons.h"
#include "toolkit/containers.h"
#include "toolkit/dialog.h"
#include "toolkit/list_controls.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

class OutputPage {
  Dialog& dialog_;  // before the controls, which are listed there
  Session& session_;
  ProjectSettings& copy_;

 public:
  /// What the controls show lives in `copy`. All must outlive the page.
  OutputPage(Dialog& dialog, Session& session, ProjectSettings& copy);

  Layout layout();

  /// Shows what is in the copy.
  void show();

  void setTemplateFolder(const std::string& folder);
  void setOutputPath(const std::string& folder);

  /// Reads the folder, and no template is selected then. The folder that is shown already stays as
  /// it is.
  void readTemplateFolder();

  Frame Frame5{dialog_, "Frame5", "Template"};
  Label Label3{dialog_, "Label3", "Templates Folder"};
  TextBox Text9{dialog_, "Text9"};
  CommandButton Command13{dialog_, "Command13", "..."};
  FileList File1;
  TextBox Text1{dialog_, "Text1"};  // the template's description

  Frame Frame6{dialog_, "Frame6", "Output Folder"};
  TextBox Text8{dialog_, "Text8"};
  CommandButton Command12{dialog_, "Command12", "..."};

 private:
  std::string listedFolder_;  // as it stands in Text9

  void chooseTemplate();
  void showDescription();
};

}  // namespace tamrikon
