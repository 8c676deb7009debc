#include "dialogs/output_page.h"

#include <utility>

#include "base/paths.h"
#include "compiler/template_description.h"
#include "platform/folder_listing.h"

namespace tamrikon {

OutputPage::OutputPage(Dialog& dialog, Session& session, ProjectSettings& copy)
    : dialog_(dialog),
      session_(session),
      copy_(copy),
      File1(dialog, "File1", "*.tmkt", [&files = session.files.files()](const std::string& folder) {
        return filesIn(files, folder);
      }) {
  Text1.setMultiLine(true);
  Text1.setReadOnly(true);
  Text9.onChange = [this] { copy_.templateFolder = Text9.text(); };
  Text9.onLostFocus = [this] { readTemplateFolder(); };
  Text8.onChange = [this] { copy_.outputPath = Text8.text(); };
  File1.onClick = [this] { chooseTemplate(); };
  File1.onDblClick = [this] { chooseTemplate(); };
}

void OutputPage::show() {
  Text9.setText(copy_.templateFolder);
  listedFolder_ = Text9.text();
  Text8.setText(copy_.outputPath);
  const std::string name(lastName(copy_.templatePath));
  // The separator stays at the end, so that a root remains one.
  File1.setPath(copy_.templatePath.substr(0, copy_.templatePath.size() - name.size()));
  File1.select(File1.find(name));
  showDescription();
}

void OutputPage::setTemplateFolder(const std::string& folder) {
  Text9.setText(folder);
  copy_.templateFolder = folder;
}

void OutputPage::setOutputPath(const std::string& folder) {
  Text8.setText(folder);
  copy_.outputPath = folder;
}

void OutputPage::readTemplateFolder() {
  if (Text9.text() == listedFolder_) return;
  listedFolder_ = Text9.text();
  Text1.setText("");
  File1.setPath(copy_.templateFolder);
}

void OutputPage::chooseTemplate() {
  if (File1.selected() < 0) return;
  copy_.templateFolder = std::string(withoutTrailingSeparator(copy_.templateFolder));
  copy_.templatePath = joinPath(copy_.templateFolder, File1.selectedText());
  showDescription();
}

void OutputPage::showDescription() {
  Text1.setText(readTemplateDescription(session_, copy_.templatePath));
}

Layout OutputPage::layout() {
  Layout chooser = column({
      labelled(Label3, row({item(Text9).sized(40).growing(), item(Command13)})),
      item(File1).sized(40, 8).growing(),
      item(Text1).sized(40, 4),
  });
  Layout folder = row({item(Text8).sized(40).growing(), item(Command12)});
  return column({framed(Frame5, std::move(chooser)).growing(), framed(Frame6, std::move(folder))});
}

}  // namespace tamrikon
