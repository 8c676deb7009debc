#include "editor/references_page.h"

#include <algorithm>

#include "editor/example_file.h"
#include "editor/interest_links.h"
#include "editor/reference_select_dlg.h"

namespace tamrikon {

ReferencesPage::ReferencesPage(Dialog& dialog, CommentFields& fields, FieldBoxes& boxes,
                               Session& session)
    : dialog_(dialog),
      seeAlso(dialog, fields.seeList,
              {"SeeAlsoList", "Links in See Also section", "SeeText", "SeeLabelText", "AddSeeBtn",
               "RemoveSeeBtn", "SelectSeeBtn"}),
      examples(dialog, fields.exampleList,
               {"ExamplesList", "Links in Examples section", "ExampleText", "ExamLabelText",
                "ExamAddBtn", "RemoveExamBtn", "SelectExamBtn"}),
      fields_(fields),
      session_(session) {
  boxes.add(SameText, fields.sameAs);
  seeAlso.select.onClick = [this] { selectSeeAlso(); };
  findInterestBtn.onClick = [this] { findInterest(); };
  examples.select.onClick = [this] { selectExample(); };
  Command2.onClick = [this] { openExample(examples.link.text(), dialog_.toolkit(), session_); };
  Command3.onClick = [this] { createExample(); };
  SelectSameBtn.onClick = [this] { selectSame(); };
}

void ReferencesPage::show() {
  seeAlso.show();
  examples.show();
}

void ReferencesPage::fillBoxes() {
  seeAlso.fillBoxes();
  examples.fillBoxes();
}

void ReferencesPage::selectSeeAlso() {
  ReferenceSelectDlg picker(dialog_.toolkit(), session_, edited->member(), seeAlso.link.text());
  picker.initBoth();
  picker.showModal();
  if (picker.link.empty()) return;
  seeAlso.link.setText(picker.link);
  seeAlso.label.setText("");
  seeAlso.addLink();
}

void ReferencesPage::selectExample() {
  ReferenceSelectDlg picker(dialog_.toolkit(), session_, edited->member(), examples.link.text());
  picker.initFile();
  picker.showModal();
  if (picker.link.empty()) return;
  examples.link.setText(picker.link);
  examples.addLink();
}

void ReferencesPage::selectSame() {
  ReferenceSelectDlg picker(dialog_.toolkit(), session_, edited->member(), SameText.text());
  picker.initMember();
  picker.showModal();
  if (picker.link.empty()) return;
  SameText.setText(picker.link);
  fields_.sameAs = picker.link;
}

void ReferencesPage::findInterest() {
  InterestLinks proposals(dialog_.toolkit(), edited->member(), *VBInstance);
  proposals.showModal();
  for (const std::string& line : proposals.chosen) {
    const std::string name = line.substr(0, line.find(' '));
    const std::vector<std::string>& items = seeAlso.list.items();
    const bool isThere = std::any_of(items.begin(), items.end(), [&](const std::string& item) {
      return item.starts_with(name);
    });
    if (isThere) continue;
    seeAlso.append(line.ends_with("[used]") ? name : linkItem(name, line));
    seeAlso.selectLast();
  }
}

void ReferencesPage::createExample() {
  const Wrapper& member = edited->member();
  const auto path = dialog_.toolkit().chooseFileToSave(
      exampleFileChoice("Create New Example File", member, "", session_.settings));
  if (!path) return;
  if (session_.files.writeTextFile(*path, "Example for " + member.name() + ".", false) > 0) return;
  examples.link.setText(exampleLink(*path, session_.settings));
  examples.addLink();
}

Layout ReferencesPage::layout() {
  const auto boxes = [](LinkList& links) {
    return row({labelled(links.linkLabel, item(links.link).sized(24).growing()), item(links.select),
                labelled(links.labelLabel, item(links.label).sized(24).growing()),
                item(links.add)});
  };
  const auto group = [&](LinkList& links, Layout buttons) {
    return column({row({item(links.list).sized(50, 4).growing(), std::move(buttons)}).growing(),
                   boxes(links)});
  };
  Layout seeButtons = column({item(seeAlso.remove), item(findInterestBtn), space()});
  Layout exampleButtons = column({item(examples.remove), item(Command2), item(Command3), space()});
  return column({
      framed(SeeAlsoFrame, group(seeAlso, std::move(seeButtons))).growing(),
      framed(ExamplesFrame, group(examples, std::move(exampleButtons))).growing(),
      framed(SameFrame, row({item(SameText).growing(), item(SelectSameBtn)})),
  });
}

}  // namespace tamrikon
