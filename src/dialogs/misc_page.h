// The tab "Miscellanous": indentation, source code in the documentation, the title page.
#pragma once

#include "settings/project_settings.h"
#include "toolkit/buttons.h"
#include "toolkit/containers.h"
#include "toolkit/dialog.h"
#include "toolkit/text_controls.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

class MiscPage {
  Dialog& dialog_;  // before the controls, which are listed there
  OptionGroup indentModes_;
  OptionGroup sourceModes_;

 public:
  /// Both must outlive the page.
  MiscPage(Dialog& dialog, Toolkit& toolkit);

  Layout layout();
  void show(const ProjectSettings& settings);
  void take(ProjectSettings& settings) const;

  Frame Frame7{dialog_, "Frame7", "Comment indent mode"};
  OptionButton Option1{dialog_, indentModes_, "Option1", "Don't ignore indent",
                       "Keep leading whitespaces of each comment line"};
  OptionButton Option2{dialog_, indentModes_, "Option2", "Ignore indent",
                       "Remove leading whitespaces or first quote, if any"};
  CommandButton Command11{dialog_, "Command11", "Show Example", "Show how the output will look"};

  Frame Frame8{dialog_, "Frame8", "Include source code in documentation"};
  OptionButton Option5{dialog_, sourceModes_, "Option5", "Always",
                       "Include source code for every member"};
  OptionButton Option6{dialog_, sourceModes_, "Option6", "Never",
                       "Don't include source code for any member"};
  OptionButton Option7{dialog_, sourceModes_, "Option7", "According to @includesource tag",
                       "Include source code only for members with @includesource yes tag"};

  Label Label5{dialog_, "Label5",
               "Title page text (do not insert title, it is added automatically)"};
  TextBox Text7{dialog_, "Text7", "", "Title page text"};

 private:
  std::int16_t indentMode() const { return Option1.isSelected() ? 0 : 1; }
};

}  // namespace tamrikon
