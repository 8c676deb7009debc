#include "dialogs/frm_add_in.h"

#include <algorithm>

#include "base/paths.h"
#include "base/text.h"
#include "platform/folder_listing.h"
#include "toolkit/frm_browse_dlg.h"
#include "toolkit/open_manual.h"

namespace tamrikon {
namespace {

bool isLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

}  // namespace

frmAddIn::frmAddIn(Toolkit& toolkit, Session& session)
    : Dialog(toolkit, "frmAddIn", "Options"),
      commentPage(*this, session, copy_),
      outputPage(*this, session, copy_),
      miscPage(*this, toolkit),
      session_(session) {
  cmdOK.setRole(ButtonRole::default_);
  cmdCancel.setRole(ButtonRole::cancel);
  addHandlers();
}

void frmAddIn::addHandlers() {
  for (UserTagControls& tag : commentPage.userTags) {
    tag.name.onLostFocus = [&tag] {
      tag.name.setText(validateTagName(tag.name.text(), tag.number));
    };
  }
  outputPage.Command12.onClick = [this] {
    const std::string folder =
        browseForFolder("Specify the output folder", inProject(outputPage.Text8.text()));
    if (!folder.empty()) outputPage.setOutputPath(folder);
  };
  outputPage.Command13.onClick = [this] {
    const std::string folder =
        browseForFolder("Specify the templates folder", outputPage.Text9.text());
    if (!folder.empty()) outputPage.setTemplateFolder(folder);
    outputPage.readTemplateFolder();
  };
  Command4.onClick = [this] { openManual(toolkit(), session_.addInFolder); };
  Command1.onClick = [this] { requestCompile(false); };
  Command14.onClick = [this] { requestCompile(true); };
  cmdApply.onClick = [this] { apply(); };
  cmdCancel.onClick = [this] { connect->Hide(); };
  cmdOK.onClick = [this] {
    apply();
    connect->Hide();
  };
}

std::vector<frmAddIn::CheckBoxSetting> frmAddIn::checkBoxes() {
  using Settings = ProjectSettings;
  return {
      {compilePage.Check1, &Settings::comNonCommented},
      {compilePage.Check2, &Settings::comPublic},
      {compilePage.Check3, &Settings::comPrivate},
      {compilePage.Check4, &Settings::comFriend},
      {compilePage.Check5, &Settings::comObject},
      {compilePage.Check6, &Settings::comForm},
      {compilePage.Check7, &Settings::comStdModule},
      {compilePage.Check8, &Settings::comMethod},
      {compilePage.Check9, &Settings::comProperty},
      {compilePage.Check10, &Settings::comEvent},
      {compilePage.Check18, &Settings::comVariable},
      {compilePage.Check19, &Settings::comConstant},
      {compilePage.Check17, &Settings::comContextID},
      {compilePage.Check29, &Settings::comWriteDescription},
      {commentPage.Check12, &Settings::addDescription},
      {commentPage.Check11, &Settings::addParam},
      {commentPage.Check13, &Settings::addReturn},
      {commentPage.Check14, &Settings::addRem},
      {commentPage.Check15, &Settings::addSee},
      {commentPage.Check16, &Settings::addSame},
      {commentPage.Check25, &Settings::addAuthor},
      {commentPage.Check26, &Settings::addRevision},
      {commentPage.Check27, &Settings::addVersion},
      {commentPage.Check28, &Settings::addIncludeSource},
  };
}

void frmAddIn::fillValues() {
  copy_ = session_.settings;
  for (const auto& [box, setting] : checkBoxes()) box.setChecked(copy_.*setting);
  commentPage.showUserTags(copy_);
  miscPage.show(copy_);
  showProject();
  KeyedList<CodeModule*> modules;
  if (VBInstance != nullptr) tryStep([&] { modules = SettingsFile::codeModules(*VBInstance); });
  compilePage.showModules(modules, copy_.comModules);
  outputPage.show();
}

void frmAddIn::showProject() {
  compilePage.Label2.setCaption("No project opened !");
  const bool hasProject =
      VBInstance != nullptr && tryStep([this] {
        compilePage.Label2.setCaption(VBInstance->ActiveVBProject().Name() + " Project:");
      });
  for (Control* control : controls()) control->setEnabled(hasProject);
  Command4.setEnabled(true);
  cmdCancel.setEnabled(true);
  // The message stands there, and the other tabs can't be reached.
  if (!hasProject) return tbsOptions.select("Group1");
  tryStep([this] { Command14.setEnabled(VBInstance->VBProjects().Count() >= 2); });
}

void frmAddIn::apply() {
  // Field by field: what isn't shown here stays as it is in the settings.
  ProjectSettings& settings = session_.settings;
  for (const auto& [box, setting] : checkBoxes()) settings.*setting = box.isChecked();
  commentPage.takeUserTags(settings);
  miscPage.take(settings);
  outputPage.setOutputPath(inProject(copy_.outputPath));
  settings.outputPath = copy_.outputPath;
  settings.templateFolder = copy_.templateFolder;
  settings.templatePath = copy_.templatePath;
  settings.comModules = compilePage.chosenModules();
  tryStep([this] { session_.settingsFile.writeSettingsFile(*VBInstance); });
  createOutputFolder();
}

std::string frmAddIn::inProject(const std::string& folder) const {
  std::string path = folder;
  if (trim(path).empty()) path = session_.settingsFile.defaultOutputFolder(*VBInstance);
  if (isAbsolutePath(path)) return path;
  tryStep([&] {
    const std::string project = VBInstance->ActiveVBProject().FileName();
    path = joinPath(folderOf(project), path);
  });
  // A path of another system stays as its user writes it.
  return path.find('\\') == std::string::npos ? session_.files.files().absolute(path) : path;
}

void frmAddIn::createOutputFolder() {
  const std::string& folder = session_.settings.outputPath;
  if (session_.files.files().createFolders(folder) == FileError::none) return;
  toolkit().messageBox({caption(), "The output folder can't be created:\r\n" + folder,
                        MessageButtons::ok, MessageIcon::exclamation});
}

void frmAddIn::requestCompile(bool wholeGroup) {
  apply();
  connect->compileWholeGroup = wholeGroup;
  connect->startCompile = true;
  connect->Hide();
}

void frmAddIn::onKeyDown(KeyEvent& key) {
  if (key.key != Key::f1) return;
  key.handled = true;
  openManual(toolkit(), session_.addInFolder);
}

bool frmAddIn::onQueryClose() {
  connect->Hide();
  return true;
}

std::string frmAddIn::browseForFolder(const std::string& prompt, const std::string& start) {
  const auto subfolders = [&files = session_.files.files()](const std::string& folder) {
    return foldersIn(files, folder);
  };
  const auto make = [&files = session_.files.files()](const std::string& folder) {
    return files.createFolder(folder) == FileError::none;
  };
  return tamrikon::browseForFolder(toolkit(), subfolders, make, prompt, start);
}

std::string frmAddIn::validateTagName(const std::string& text, int index) {
  const std::string name(trim(text));
  const bool isName = !name.empty() && std::all_of(name.begin(), name.end(), isLetterOrDigit);
  return isName ? name : "user" + std::to_string(index);
}

Layout frmAddIn::layout() {
  return column({
      tabbed(tbsOptions,
             {compilePage.layout(), commentPage.layout(), outputPage.layout(), miscPage.layout()})
          .growing(),
      row({item(Command4), space(), item(Command1), item(Command14), item(cmdApply),
           item(cmdCancel), item(cmdOK)}),
  });
}

}  // namespace tamrikon
