#include "dialogs/misc_page.h"

#include <utility>

#include "dialogs/indent_example.h"

namespace tamrikon {

MiscPage::MiscPage(Dialog& dialog, Toolkit& toolkit) : dialog_(dialog) {
  Text7.setMultiLine(true);
  Command11.onClick = [this, &toolkit] { IndentExample(toolkit, indentMode()).showModal(); };
}

void MiscPage::show(const ProjectSettings& settings) {
  (settings.indentMode == 1 ? Option2 : Option1).select();
  switch (settings.insertSourceGlobal) {
    case 1: Option5.select(); break;
    case 2: Option7.select(); break;
    default: Option6.select(); break;
  }
  Text7.setText(settings.titlePageText);
}

void MiscPage::take(ProjectSettings& settings) const {
  settings.indentMode = indentMode();
  settings.insertSourceGlobal = Option6.isSelected() ? 0 : Option5.isSelected() ? 1 : 2;
  settings.titlePageText = Text7.text();
}

Layout MiscPage::layout() {
  Layout indent = column({item(Option1), item(Option2), row({item(Command11), space()})});
  Layout source = column({item(Option5), item(Option6), item(Option7)});
  return column({
      row({framed(Frame7, std::move(indent)).growing(),
           framed(Frame8, std::move(source)).growing()}),
      labelled(Label5, item(Text7).sized(50, 8).growing()).growing(),
  });
}

}  // namespace tamrikon
