#include "editor/reference_select_dlg.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/case_folding.h"
#include "base/paths.h"
#include "base/text.h"
#include "editor/example_file.h"
#include "editor/member_entries.h"

namespace tamrikon {

ReferenceSelectDlg::ReferenceSelectDlg(Toolkit& toolkit, Session& session, const Wrapper& member,
                                       std::string presentLink)
    : Dialog(toolkit, "ReferenceSelectDlg", "Select reference"),
      link(std::move(presentLink)),
      session_(session),
      member_(member) {
  cmdOK.setRole(ButtonRole::default_);
  cmdCancel.setRole(ButtonRole::cancel);
  Option1.onClick = Option2.onClick = [this] { showPage(); };
  ModuleCombo.onClick = ModuleCombo.onLostFocus = [this] { fillMembers(); };
  MembersList.onClick = [this] { enableOK(); };
  MembersList.onDblClick = [this] { pick(); };
  FileText.onChange = [this] {
    if (isOutside()) AbsolutePathCheck.setChecked(true);
    enableOK();
  };
  AbsolutePathCheck.onClick = [this] { enableOK(); };
  SelectFileBtn.onClick = [this] { selectFile(); };
  cmdOK.onClick = [this] { pick(); };
  cmdCancel.onClick = [this] {
    link.clear();
    close();
  };
}

void ReferenceSelectDlg::initBoth() {
  init(true, Option1);
}

void ReferenceSelectDlg::initFile() {
  init(false, Option2);
}

void ReferenceSelectDlg::initMember() {
  init(false, Option1);
}

void ReferenceSelectDlg::init(bool isChoiceFree, OptionButton& option) {
  Frame1.setEnabled(isChoiceFree);
  Option1.setEnabled(isChoiceFree);
  Option2.setEnabled(isChoiceFree);
  option.select();
  showPage();
}

void ReferenceSelectDlg::showPage() {
  MemberPage.setVisible(Option1.isSelected());
  FilePage.setVisible(Option2.isSelected());
  enableOK();
}

void ReferenceSelectDlg::onLoad() {
  if (!Option1.isEnabled() && !Option1.isSelected()) return;
  std::vector<std::string> names;
  for (const CodeModule* module : session_.settings.comModules) names.push_back(module->Name());
  ModuleCombo.setItems(std::move(names));
  fillMembers();
}

void ReferenceSelectDlg::fillMembers() {
  // The box loses the focus as well when nothing has changed: the selection is to stay then.
  const std::string selected =
      ModuleCombo.text() == listedModule_ ? MembersList.selectedText() : std::string();
  listedModule_ = ModuleCombo.text();
  MembersList.clear();
  if (CodeModule* const* module = session_.settings.comModules.find(listedModule_)) {
    tryStep([&] { MembersList.setItems(memberEntries(**module)); });
  }
  MembersList.select(MembersList.find(selected));
  enableOK();
}

void ReferenceSelectDlg::onActivate() {
  showLink();
  enableOK();
}

void ReferenceSelectDlg::showLink() {
  const bool canBeFile = Option2.isEnabled() || Option2.isSelected();
  if (link.starts_with('"') && canBeFile) {
    FileText.setText(link.substr(1));
    // Otherwise OK alone would take the path away.
    AbsolutePathCheck.setChecked(lastName(FileText.text()) != FileText.text());
    Option2.select();
    showPage();
    return;
  }
  FileText.setText("");
  const std::size_t dot = link.find('.');
  const std::size_t apostrophe = std::min(link.find('\''), link.size());
  std::string module = link.substr(0, dot);
  if (module.empty()) module = member_.source().name();
  std::string name;
  if (dot != std::string::npos && dot < apostrophe) {
    name = link.substr(dot + 1, apostrophe - dot - 1);
    if (name.empty()) name = member_.name();
  }
  const std::vector<std::string>& modules = ModuleCombo.items();
  const auto found = std::find_if(modules.begin(), modules.end(), [&](const std::string& item) {
    return equalIgnoringCase(item, module);
  });
  ModuleCombo.select(found == modules.end() ? -1 : static_cast<int>(found - modules.begin()));
  fillMembers();
  selectMember(name, link.substr(apostrophe));
}

void ReferenceSelectDlg::selectMember(const std::string& name, const std::string& suffix) {
  if (name.empty()) {
    selectEntry(std::string(kModuleEntry));
  } else if (!suffix.empty()) {
    selectEntry(name + std::string(endingOfSuffix(suffix)));
  } else {
    for (const std::string_view ending : {std::string_view(), kSetEnding, kLetEnding, kGetEnding}) {
      if (selectEntry(name + std::string(ending))) return;
    }
  }
}

bool ReferenceSelectDlg::selectEntry(const std::string& entry) {
  for (int i = 0; i < MembersList.count(); ++i) {
    if (!equalIgnoringCase(MembersList.items()[static_cast<std::size_t>(i)], entry)) continue;
    MembersList.select(i);
    return true;
  }
  return false;
}

std::string ReferenceSelectDlg::memberLink() const {
  if (ModuleCombo.selected() < 0 || MembersList.selected() < 0) return {};
  return linkToEntry(ModuleCombo.text(), MembersList.selectedText(), member_.source().name());
}

std::string ReferenceSelectDlg::fileLink() const {
  const std::string_view text = FileText.text();
  const std::string_view name = lastName(text);
  if (trim(name).empty()) return {};
  return std::string("\"").append(AbsolutePathCheck.isChecked() ? text : name);
}

std::string ReferenceSelectDlg::pickedLink() const {
  return Option1.isSelected() ? memberLink() : fileLink();
}

void ReferenceSelectDlg::enableOK() {
  cmdOK.setEnabled(!pickedLink().empty());
}

void ReferenceSelectDlg::pick() {
  const std::string picked = pickedLink();
  if (picked.empty()) return;
  link = picked;
  close();
}

bool ReferenceSelectDlg::onQueryClose() {
  link.clear();
  return true;
}

void ReferenceSelectDlg::selectFile() {
  const auto path = toolkit().chooseFileToOpen(
      exampleFileChoice("Select Example File", member_, FileText.text(), session_.settings));
  if (!path) return;
  FileText.setText(*path);
  AbsolutePathCheck.setChecked(isOutside());
  enableOK();
}

bool ReferenceSelectDlg::isOutside() const {
  const std::string& file = FileText.text();
  const auto folder = [this](std::string_view path) {
    return session_.files.files().absolute(std::string(withoutTrailingSeparator(path)));
  };
  return isAbsolutePath(file) && folder(folderOf(file)) != folder(session_.settings.outputPath);
}

Layout ReferenceSelectDlg::layout() {
  return column({
      framed(Frame1, row({item(Option1), item(Option2), space()})),
      framed(MemberPage,
             column({labelled(ModuleLabel, item(ModuleCombo)),
                     labelled(MembersLabel, item(MembersList).sized(40, 12).growing()).growing()}))
          .growing(),
      framed(FilePage, column({row({labelled(FileLabel, item(FileText).sized(44).growing()),
                                    item(SelectFileBtn)}),
                               item(AbsolutePathCheck), space()}))
          .growing(),
      row({space(), item(cmdOK), item(cmdCancel)}),
  });
}

}  // namespace tamrikon
