#include "editor/edit_comment.h"

#include <algorithm>
#include <utility>

#include "compiler/store.h"
#include "editor/compose_comment.h"
#include "editor/edit_comment_options.h"
#include "editor/lost_lines_dlg.h"
#include "editor/selection.h"
#include "toolkit/toolkit.h"

namespace tamrikon {
namespace {

bool hasParameters(WrapperKind kind) {
  return kind == WrapperKind::method || kind == WrapperKind::event || isProperty(kind);
}

}  // namespace

EditComment::EditComment(Toolkit& toolkit, Session& session)
    : Dialog(toolkit, "EditComment", "Tamrikon Comment Editor"),
      parametersPage(*this, fields_, boxes_, session.settings),
      referencesPage(*this, fields_, boxes_, session),
      session_(session) {
  cmdOK.setRole(ButtonRole::default_);
  cmdCancel.setRole(ButtonRole::cancel);
  tbsOptions.onClick = [this] {
    const std::string& key = tbsOptions.tabs()[static_cast<std::size_t>(tbsOptions.selected())].key;
    if (key == "Group3") referencesPage.fillBoxes();
    if (key == "Group4") composeComment();
  };
  sourcePage.Command1.onClick = [this] { showOptions(); };
  cmdOK.onClick = [this] {
    if (apply()) close();
  };
  cmdCancel.onClick = [this] { close(); };
  cmdApply.onClick = [this] { apply(); };
}

void EditComment::onLoad() {
  edited_.reset();
  tryStep([this] { load(); });
  if (!edited_) close();
}

void EditComment::load() {
  tbsOptions.select("Group1");
  CodePane* pane = VBInstance->ActiveCodePane();
  if (pane == nullptr || !isEmpty(pane->GetSelection())) return;
  CodeModule& module = pane->CodeModule();
  auto edited =
      std::make_unique<EditedComment>(module, pane->GetSelection().startLine, session_.settings);
  // The macros of the last compile don't outlive it.
  session_.currentStore.reset();
  const Wrapper& member = edited->member();
  setCaption(member.name() + " - Tamrikon Comment Editor");
  parametersPage.enable(hasParameters(member.kind()));
  parametersPage.generatedLines = edited->generatedLines();
  referencesPage.VBInstance = VBInstance;
  referencesPage.edited = edited.get();
  fields_ = parseIntoFields(edited->commentLines(), session_.settings);
  laysOutAll_ = false;
  origins_ = {};
  parametersPage.lost.clear();
  if (edited->hadComment()) origins_ = FieldOrigins(edited->commentLines(), session_.settings);
  edited_ = std::move(edited);
  fillControls();
  if (session_.settings.autoUpdateParams == 1) parametersPage.update();
  unchanged_ = fieldItems(fields_, session_.settings);
}

void EditComment::fillControls() {
  boxes_.show();
  parametersPage.show();
  referencesPage.show();
  miscPage.show();
  userPage.show(session_.settings);
  sourcePage.SourceView.setText(CollectionToCommentString(edited_->commentLines()));
}

void EditComment::takeBoxes() {
  // The box that has the focus keeps it where a key alone brought the user here.
  boxes_.take();
  parametersPage.take();
}

CommentLines EditComment::composeComment() {
  takeBoxes();
  CommentLines lines = origins_.compose(fields_, session_.settings, laysOutAll_);
  sourcePage.SourceView.setText(CollectionToCommentString(lines));
  return lines;
}

bool EditComment::apply() {
  const CommentLines lines = composeComment();
  const bool isWritten = edited_->hadComment() && lines == edited_->commentLines();
  if (!isWritten) {
    if (!mayLose()) return false;
    if (!tryStep([&] { edited_->replace(lines, group); })) return true;
    origins_ = origins_.written(fields_, session_.settings, laysOutAll_);
    laysOutAll_ = false;
    parametersPage.lost.clear();
  }
  unchanged_ = fieldItems(fields_, session_.settings);
  tryStep([this] { session_.settingsFile.writeSettingsFile(*VBInstance); });
  return true;
}

bool EditComment::mayLose() {
  CommentLines lost;
  if (!edited_->headline().empty()) lost.push_back("** " + edited_->headline());
  for (const CommentLines* lines : {&origins_.unread(), &std::as_const(parametersPage.lost)}) {
    lost.insert(lost.end(), lines->begin(), lines->end());
  }
  if (lost.empty()) return true;
  LostLinesDlg warning(toolkit(), lost);
  warning.showModal();
  return warning.isAccepted;
}

bool EditComment::isChanged() {
  takeBoxes();
  return fieldItems(fields_, session_.settings) != unchanged_;
}

bool EditComment::letGo() {
  if (!isChanged()) return true;
  const MessageAnswer answer =
      toolkit().messageBox({"Comment editor",
                            "The comment of " + edited_->member().name() +
                                " has changes that aren't applied. Apply them?",
                            MessageButtons::yesNoCancel, MessageIcon::question});
  return answer == MessageAnswer::no || (answer == MessageAnswer::yes && apply());
}

void EditComment::onKeyDown(KeyEvent& event) {
  // An open cell has the key for itself.
  if (event.key != Key::escape || parametersPage.settingsGrid.isEditing()) return;
  event.handled = true;
  if (letGo()) close();
}

bool EditComment::onQueryClose() {
  return letGo();
}

void EditComment::showOptions() {
  const auto layoutIn = [](const ProjectSettings& settings) {
    return std::pair(std::max<int>(settings.wordWrapLength, 0), settings.autoInsertEOL);
  };
  const auto before = layoutIn(session_.settings);
  EditCommentOptions(toolkit(), session_.settings).showModal();
  if (layoutIn(session_.settings) != before) laysOutAll_ = true;
  composeComment();
}

Layout EditComment::layout() {
  return column({
      tabbed(tbsOptions, {basicPage.layout(), parametersPage.layout(), referencesPage.layout(),
                          miscPage.layout(), userPage.layout(), sourcePage.layout()})
          .growing(),
      row({space(), item(cmdOK), item(cmdCancel), item(cmdApply)}),
  });
}

}  // namespace tamrikon
